#pragma once

#include <QImage>
#include <QWidget>

/// Two pictures of one photograph side by side, each as large as its half allows, with a caption under each.
class BeforeAfterView : public QWidget
{
    Q_OBJECT

public:
    explicit BeforeAfterView(QWidget *parent = nullptr);

    /// If one picture is null, the other takes all the room.
    void compare(const QImage &before, const QImage &after);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage pictures[2]; ///< Before, after.
};
