#include <atomic>
#include <cmath>
#include <vector>

#include <QFileInfo>
#include <QTimer>
#include <gtest/gtest.h>

#include "PhotoStore.h"
#include "PictureRenderer.h"
#include "TestFolder.h"
#include "WindowWorkTest.h"

namespace {

/// A store, and what it has said.
class Store
{
public:
    explicit Store(PhotoStore::FreeMemory freeMemory = [] { return quint64(1) << 40; }) : store(std::move(freeMemory), nullptr)
    {
        QObject::connect(&store, &PhotoStore::pixelsReady, [this](const QString &path) { note("pixels", path); });
        QObject::connect(&store, &PhotoStore::mapReady, [this](const QString &path) { note("map", path); });
        QObject::connect(&store, &PhotoStore::failed, [this](const QString &path, const QString &reason) {
            note("failed", path);
            reasons << reason;
        });
    }
    bool isComplete(const QString &path) const
    {
        const auto photo = store.photo(path);
        return photo && photo->isComplete();
    }
    bool hasSaid(const QString &said) const { return says.contains(said); }

    QStringList says, reasons;
    PhotoStore store; ///< Last: it is the first to go.

private:
    void note(const char *what, const QString &path) { says << QStringLiteral("%1 %2").arg(what, QFileInfo(path).fileName()); }
};

/// Photographs a.png, b.png and so on.
QStringList series(const TestFolder &folder, int count, int width = 200, int height = 150)
{
    QStringList paths;
    for (int i = 0; i < count; ++i) {
        const QString name = QChar('a' + i) + QStringLiteral(".png");
        folder.photograph(name, width, height);
        paths << folder.path(name);
    }
    return paths;
}

} // namespace

TEST(WindowThreads, TheStorePreparesThePhotographInViewFirstAndDropsWhatIsFarAway)
{
    TestFolder folder;
    const QStringList paths = series(folder, 5);
    Store held;
    held.store.show(paths[1], {paths[2], paths[0]});
    ASSERT_TRUE(eventually([&] { return held.says.size() == 6; }));
    EXPECT_EQ(held.says.mid(0, 2), QStringList({"pixels b.png", "map b.png"}));
    EXPECT_LT(held.says.indexOf("pixels c.png"), held.says.indexOf("pixels a.png"));
    for (const QString &path : paths.mid(0, 3))
        EXPECT_TRUE(held.isComplete(path)) << path;

    // The next one is there already; what it shares with the last stays the same object.
    const auto kept = held.store.photo(paths[2]);
    held.says.clear();
    held.store.show(paths[2], {paths[3], paths[1]});
    EXPECT_EQ(held.store.photo(paths[2]), kept);
    EXPECT_EQ(held.store.photo(paths[0]), nullptr);
    ASSERT_TRUE(eventually([&] { return held.hasSaid("map d.png"); }));
    EXPECT_EQ(held.says, QStringList({"pixels d.png", "map d.png"}));

    // Quick changes: only what is wanted at the end is held, and there is no signal of what is not.
    held.says.clear();
    for (int i = 0; i < 200; ++i)
        held.store.show(paths[i % 5], {paths[(i + 1) % 5], paths[(i + 2) % 5]});
    held.store.show(paths[4], {paths[3]});
    ASSERT_TRUE(eventually([&] { return held.isComplete(paths[4]) && held.isComplete(paths[3]); }));
    for (const QString &path : paths.mid(0, 3))
        EXPECT_EQ(held.store.photo(path), nullptr) << path;
    EXPECT_FALSE(held.says.contains("map a.png"));

    // A photograph that has changed is read again.
    const auto old = held.store.photo(paths[4]);
    folder.photograph("e.png", 30, 20);
    held.says.clear();
    held.store.forget(paths[4]);
    EXPECT_NE(held.store.photo(paths[4]), old);
    ASSERT_TRUE(eventually([&] { return held.hasSaid("map e.png"); }));
    EXPECT_EQ(held.store.photo(paths[4])->size(), QSize(30, 20));
    EXPECT_EQ(old->size(), QSize(200, 150));

    held.store.show(QString(), {});
    EXPECT_EQ(held.store.photo(paths[4]), nullptr);
}

TEST(WindowThreads, TheStoreSaysWhatItCannotShow)
{
    TestFolder folder;
    const QStringList paths = series(folder, 1);
    folder.write("damaged.png", folder.content("a.png").left(300));
    folder.photograph("spoilt.tif", 60, 40, VImage::Rgb, 32);
    folder.spoil("spoilt.tif");
    Store held;
    for (const QString name : {"missing.png", "damaged.png"}) {
        held.says.clear();
        held.reasons.clear();
        held.store.show(folder.path(name), paths);
        ASSERT_TRUE(eventually([&] { return held.hasSaid("map a.png"); })) << "a neighbour is prepared all the same";
        EXPECT_TRUE(held.hasSaid("failed " + name));
        EXPECT_FALSE(held.reasons.join("").isEmpty());
        held.store.show(QString(), {});
    }
    folder.photograph("missing.png");
    held.store.show(folder.path("missing.png"), {});
    EXPECT_TRUE(eventually([&] { return held.hasSaid("map missing.png"); })) << "tried again";

    // The engine can't work on it: it is shown as it is, and says why.
    held.store.show(folder.path("spoilt.tif"), {});
    ASSERT_TRUE(eventually([&] { return held.hasSaid("map spoilt.tif"); }));
    const auto spoilt = held.store.photo(folder.path("spoilt.tif"));
    EXPECT_FALSE(spoilt->hasMap());
    EXPECT_FALSE(spoilt->whyUnchanged().isEmpty());
    EXPECT_EQ(PictureRenderer::picture(requestOf(spoilt, 70)), PictureRenderer::picture(requestOf(spoilt, 0)));
}

TEST(WindowThreads, TheStoreKeepsWithinTheFreeMemory)
{
    TestFolder folder;
    const QStringList paths = series(folder, 3);
    const OpenPhoto::Memory need = OpenPhoto::memoryFor(PhotoLoader::describe(paths[0]));
    {
        Store held([&] { return quint64(need.estimating) + 1; });
        held.store.show(paths[0], paths.mid(1));
        ASSERT_TRUE(eventually([&] { return held.hasSaid("map a.png"); }));
        // Read they are, but a map takes more than half of what is free.
        ASSERT_TRUE(eventually([&] { return held.hasSaid("pixels c.png"); }));
        held.store.show(paths[1], {});
        ASSERT_TRUE(eventually([&] { return held.hasSaid("map b.png"); })) << "once it is in view, it may have all";
        EXPECT_FALSE(held.says.join(" ").contains("failed"));
    }
    {
        Store held([&] { return quint64(need.estimating) - 1; });
        held.store.show(paths[0], {});
        ASSERT_TRUE(eventually([&] { return held.hasSaid("failed a.png"); }));
        EXPECT_NE(held.store.photo(paths[0]), nullptr) << "its pixels can be shown";
    }
    {
        Store held([&] { return quint64(need.reading) - 1; });
        held.store.show(paths[0], {});
        ASSERT_TRUE(eventually([&] { return held.hasSaid("failed a.png"); }));
        EXPECT_EQ(held.store.photo(paths[0]), nullptr);
    }
    {
        // Neighbours make room for the photograph in view.
        std::atomic<int> heldElsewhere{0};
        Store held([&] { return quint64(need.estimating) * 2 + 2 - quint64(heldElsewhere); });
        held.store.show(paths[0], paths.mid(1));
        ASSERT_TRUE(eventually([&] { return held.isComplete(paths[2]); }));
        heldElsewhere = int(need.estimating) + 3;
        held.store.forget(paths[0]);
        ASSERT_TRUE(eventually([&] { return held.hasSaid("failed a.png"); }));
        EXPECT_EQ(held.store.photo(paths[1]), nullptr);
        EXPECT_EQ(held.store.photo(paths[2]), nullptr);
    }
    { // ended in the middle of everything
        Store held;
        held.store.show(paths[0], paths.mid(1));
    }
}

TEST(WindowThreads, TheRendererDeliversDuringAStormAndTheLastPictureIsExact)
{
    TestFolder folder;
    folder.photograph("a.png", 1500, 1000);
    const auto pixels = OpenPhoto::read(folder.path("a.png"));
    PictureRenderer renderer;
    struct Arrived
    {
        QImage picture;
        int strength;
        bool exact;
    };
    std::vector<Arrived> arrived;
    QObject::connect(&renderer, &PictureRenderer::ready, [&](const QImage &picture, const PictureRequest &request, bool exact) {
        arrived.push_back({picture, request.strength, exact});
    });

    // Without the map only the photograph before can be shown.
    renderer.request(requestOf(pixels, 70, 0.3));
    renderer.request(requestOf(pixels, 0, 0.3));
    ASSERT_TRUE(eventually([&] { return !arrived.empty() && arrived.back().exact; }));
    for (const Arrived &one : arrived)
        EXPECT_EQ(one.strength, 0);

    const auto photo = pixels->withMap();
    for (const double scale : {0.3, 1.0}) {
        SCOPED_TRACE(scale);
        arrived.clear();
        int sent = 0;
        QTimer drag; // as quick as the event loop
        QObject::connect(&drag, &QTimer::timeout, [&] { renderer.request(requestOf(photo, sent++ % 60, scale)); });
        drag.start(0);
        ASSERT_TRUE(eventually([&] { return arrived.size() >= 20; })) << "pictures arrive while requests do";
        drag.stop();
        const PictureRequest last = requestOf(photo, 63, scale); // a strength that the drag has not had
        renderer.request(last);
        ASSERT_TRUE(eventually([&] { return arrived.back().strength == 63 && arrived.back().exact; }));
        EXPECT_TRUE(arrived.back().picture == PictureRenderer::picture(last));
    }
    // A draft is not far from the exact picture. On a busy machine there may be none.
    arrived.clear();
    const PictureRequest reduced = requestOf(photo, 60, 0.3);
    renderer.request(reduced);
    ASSERT_TRUE(eventually([&] { return !arrived.empty() && arrived.back().exact; }));
    const QImage &draft = arrived.front().picture, &exact = arrived.back().picture;
    ASSERT_EQ(draft.size(), exact.size());
    double sum = 0;
    for (int y = 0; y < draft.height(); ++y)
        for (int x = 0; x < draft.width(); ++x)
            sum += std::pow(qGreen(draft.pixel(x, y)) - qGreen(exact.pixel(x, y)), 2);
    EXPECT_LT(std::sqrt(sum / draft.width() / draft.height()), 8);
    renderer.request(reduced); // and ends with it under way
}
