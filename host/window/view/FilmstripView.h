#pragma once

#include <QBasicTimer>
#include <QList>
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
    /// Scrolls as little as possible.
    void showWithNeighbours(int row);

Q_SIGNALS:
    /// Other rows have come into view.
    void rowsShown(const QList<int> &rows);

protected:
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QList<int> rowsInView() const;
    bool anyInWork() const;

    FilmstripDelegate *painterOfItems;
    QList<int> shownRows; ///< What rowsShown() said last,
    int shownOf = 0;      ///< and how many rows there were.
    QBasicTimer animation;
    int turn = 0; ///< Degrees.
    bool keyboardFocus = false;
};
