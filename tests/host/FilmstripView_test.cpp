#include <functional>
#include <vector>

#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTest>
#include <gtest/gtest.h>

#include "EmptyView.h"
#include "FilmstripDelegate.h"
#include "FilmstripView.h"
#include "HistogramView.h"
#include "KeySheet.h"
#include "PictureRequest.h"
#include "photographText.h"

namespace {

constexpr int kStates = int(Series::State::Failed) + 1;

/// A series without files, which counts how often a thumbnail is asked for.
class Photographs : public QAbstractListModel
{
public:
    explicit Photographs(int number) : count(number) { thumbnail.fill(QColor(90, 110, 130)); }
    int rowCount(const QModelIndex &parent) const override { return parent.isValid() ? 0 : count; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        switch (role) {
        case Series::NameRole:
        case Qt::DisplayRole:
            return QStringLiteral("valley.png");
        case Series::StrengthRole:
            return 62;
        case Series::StateRole:
            return index.row() % kStates;
        case Series::ReasonRole:
            return Series::State(index.row()) == Series::State::Failed ? QStringLiteral("The disk is full.") : QString();
        case Series::ThumbnailRole:
            ++thumbnails;
            return thumbnail;
        default:
            return {};
        }
    }

    const int count;
    QImage thumbnail{160, 120, QImage::Format_RGB32};
    mutable int thumbnails = 0;
};

int marked(const QImage &picture, QRgb colour)
{
    int pixels = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            pixels += picture.pixel(x, y) == colour;
    return pixels;
}

TEST(FilmstripView, EachStateIsSeenWithoutColours)
{
    Photographs series(kStates);
    FilmstripView strip;
    strip.setModel(&series);
    strip.resize(1400, strip.sizeHint().height());
    strip.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&strip));
    const double ratio = strip.devicePixelRatioF();
    const QImage seen = strip.viewport()->grab().toImage().convertToFormat(QImage::Format_Grayscale8);
    const auto isInk = [&](int row, int x, int y) {
        const QPoint corner = strip.visualRect(series.index(row)).topLeft() * ratio;
        return qRed(seen.pixel(corner + QPoint(x, y))) > 75; // brighter than the ground, whatever its colour
    };
    const QSize item = strip.visualRect(series.index(0)).size() * ratio;
    for (int row = 0; row < kStates; ++row)
        for (int other = 0; other < row; ++other) {
            int different = 0;
            for (int y = 0; y < item.height(); ++y)
                for (int x = 0; x < item.width(); ++x)
                    different += isInk(row, x, y) != isInk(other, x, y);
            EXPECT_GT(different / (ratio * ratio), 20) << row << " looks like " << other;
        }
    EXPECT_TRUE(photographText(series.index(int(Series::State::Failed))).contains(QStringLiteral("The disk is full.")));
}

TEST(FilmstripView, OfAThousandOnlyWhatIsVisibleIsDrawn)
{
    Photographs series(1000);
    FilmstripView strip;
    strip.setModel(&series);
    strip.resize(1400, strip.sizeHint().height());
    strip.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&strip));
    strip.setCurrentIndex(series.index(500));
    QTest::qWait(1);
    series.thumbnails = 0;
    strip.grab();
    EXPECT_GT(series.thumbnails, 5);
    EXPECT_LE(series.thumbnails, 12);
    const QRect inView = strip.viewport()->rect().adjusted(-1, 0, 1, 0); // the view's own scrolling rounds
    QList<int> shown;
    QObject::connect(&strip, &FilmstripView::rowsShown, &strip, [&](const QList<int> &rows) { shown = rows; });
    for (const int row : {0, 700, 500}) { // what comes next is in view, and is said to be
        strip.showWithNeighbours(row);
        strip.grab();
        for (const int beside : {std::max(0, row - 1), row, row + 1}) {
            EXPECT_TRUE(inView.contains(strip.visualRect(series.index(beside)))) << beside;
            EXPECT_TRUE(shown.contains(beside)) << beside;
        }
        EXPECT_LE(shown.size(), 12);
    }
    QTest::keyClick(&strip, Qt::Key_Right);
    EXPECT_EQ(strip.currentIndex().row(), 501);
    EXPECT_TRUE(strip.viewport()->rect().intersects(strip.visualRect(strip.currentIndex())));
    QTest::keyClick(&strip, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(strip.selectionModel()->selectedIndexes().size(), 2);
    QTest::keyClick(&strip, Qt::Key_End);
    EXPECT_EQ(strip.currentIndex().row(), 999);
    const int scrolled = strip.horizontalScrollBar()->value();
    QWheelEvent wheel(QPointF(100, 50), strip.mapToGlobal({100, 50}), {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(strip.viewport(), &wheel);
    EXPECT_LT(strip.horizontalScrollBar()->value(), scrolled);
}

TEST(HistogramView, ShowsTheResultOverTheSourceAndTheShares)
{
    Histogram histogram;
    histogram.after[0][200] = 1000; // red
    for (auto &bins : histogram.before)
        bins[50] = 500;
    histogram.after[2][255] = 1000000; // blue that has reached white doesn't flatten the rest
    histogram.black = 0.017;
    HistogramView view;
    view.setLocale(QLocale::c());
    view.resize(258, view.heightForWidth(258)); // a column for each value
    view.setHistogram(histogram);
    const double ratio = view.devicePixelRatioF();
    const QImage seen = view.grab().toImage();
    const auto reaches = [&](int value, const std::function<bool(QColor)> &is) {
        for (int y = 0; y < int(90 * ratio); ++y)
            if (is(seen.pixelColor(int((value + 1.5) * ratio), y)))
                return y / ratio;
        return 90.0;
    };
    EXPECT_LT(reaches(200, [](QColor colour) { return colour.red() > 2 * colour.green(); }), 25);
    const double source = reaches(50, [](QColor colour) { return colour.red() > 100 && colour.red() == colour.blue(); });
    EXPECT_GT(source, 40);
    EXPECT_LT(source, 60);
    EXPECT_TRUE(view.accessibleDescription().contains(QStringLiteral("1.7 %"))) << view.accessibleDescription().toStdString();
    for (const QRgb mark : {PictureRequest::kBlackMark, PictureRequest::kWhiteMark})
        EXPECT_GT(marked(seen, mark), 50);
}

TEST(KeySheet, ShowsTheActionsOwnKeysAndTexts)
{
    QAction save(QStringLiteral("Save && &close")), none(QStringLiteral("None")), zoom(QStringLiteral("Zoom"));
    save.setShortcut(QKeySequence(QStringLiteral("Ctrl+Return")));
    zoom.setShortcuts({QKeySequence(Qt::Key_Z), QKeySequence(QStringLiteral("Ctrl+1"))});
    zoom.setStatusTip(QStringLiteral("Show each pixel as it is"));
    const std::vector<KeySheet::Row> rows = KeySheet::rowsOf({&save, &none, &zoom});
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].does, QStringLiteral("Save & close"));
    EXPECT_EQ(rows[1].does, QStringLiteral("Show each pixel as it is"));
    EXPECT_EQ(rows[1].keys, QStringLiteral("Z")); // the first
}

TEST(EmptyView, OpensTheSessionThatIsClicked)
{
    EmptyView view;
    view.setRecentSessions({{QStringLiteral("1"), QStringLiteral("Old"), {}}});
    view.setRecentSessions(
        {{QStringLiteral("2"), QStringLiteral("Hills & valleys"), {}}, {QStringLiteral("3"), QStringLiteral("Sea"), {}}});
    QStringList opened;
    QObject::connect(&view, &EmptyView::sessionWanted, [&](const QString &id) { opened << id; });
    for (QPushButton *button : view.findChildren<QPushButton *>())
        if (button->isFlat())
            button->click();
    EXPECT_EQ(opened, QStringList({"2", "3"}));
}

} // namespace
