#pragma once

#include <QBasicTimer>
#include <QListView>

class FilmstripDelegate;

/// The series as one row of thumbnails, each with its strength, its state and its name (FilmstripDelegate), over the roles of
/// Series. The wheel scrolls along; Left, Right, Home and End move; several can be selected as in any list.
class FilmstripView : public QListView
{
    Q_OBJECT

public:
    explicit FilmstripView(QWidget *parent = nullptr);

    /// As high as an item and the scroll bar.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    bool anyInWork() const;

    FilmstripDelegate *painterOfItems;
    QBasicTimer animation;
    int turn = 0; ///< Degrees.
    bool keyboardFocus = false;
};
