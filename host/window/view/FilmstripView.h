#pragma once

#include <QListView>

/// The series as one row of thumbnails, each with its strength, its state and its name (FilmstripDelegate), over the roles of
/// Series. The wheel scrolls along; Left, Right, Home and End move; several can be selected as in any list.
class FilmstripView : public QListView
{
    Q_OBJECT

public:
    explicit FilmstripView(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void wheelEvent(QWheelEvent *event) override;
};
