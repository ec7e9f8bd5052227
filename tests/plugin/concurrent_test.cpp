// Eight photographs at once through the plug-in file, as in a host with many threads.

#include <array>
#include <thread>

#include <QDomDocument>
#include <QFile>
#include <QImage>
#include <QPluginLoader>
#include <QTemporaryDir>

#include "OneImage.h"
#include "TestHost.h"
#include "VException.h"
#include "VIPluginLibrary.h"
#include "VIPluginOne2One.h"

namespace {

// At this size the engine's copy is small (its product wraps around to 2846 x 3): every stage has work to do, and the race
// detector can handle eight runs.
constexpr int kWidth = 47000;
constexpr int kHeight = 50;
constexpr int kRuns = 8;

/// One photograph. Unlike TestImage it writes nothing that another photograph reads.
class Still : public OneImage
{
public:
    explicit Still(int number) : OneImage(kWidth, kHeight, VImage::Grey)
    {
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x)
                *image.PixelAddress(x, y) = static_cast<unsigned char>(200 - 3 * y + (x / 9 + number * y) % 5 * y / 2);
    }
};

class ManyHost : public TestHost
{
public:
    using TestHost::TestHost;
    ImageDef *imageDef(const QString &path) override { return stills.at(path).get(); }

    std::map<QString, std::unique_ptr<Still>> stills;
};

TEST(Concurrent, EightRunsAtOnceGiveTheSameResultsAsSingleRuns)
{
    int argumentCount = 1;
    char programName[] = "test";
    char *arguments[] = {programName, nullptr};
    ManyHost host(argumentCount, arguments);
    QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
    auto *const library = qobject_cast<VIPluginLibrary *>(loader.instance());
    ASSERT_NE(library, nullptr) << qPrintable(loader.errorString());
    auto *const process = qobject_cast<VIPluginOne2One *>(library->processes(1).last());

    const QTemporaryDir folder;
    QImage metadata(8, 8, QImage::Format_Grayscale8);
    metadata.fill(Qt::gray);
    QDomDocument document;
    QDomElement element = document.createElement(QStringLiteral("Veilaway"));
    element.setAttribute(QStringLiteral("hazeRemove"), 80);
    struct Job
    {
        QString path, result, failure;
        VISettingsHandle settings;
    };
    std::array<Job, kRuns + 1> jobs; // each picture twice, and the first one a third time, alone
    for (int i = 0; i <= kRuns; ++i) {
        jobs[std::size_t(i)] = {folder.filePath(QStringLiteral("%1.png").arg(i)), {}, {}, process->createSettings(element)};
        metadata.save(jobs[std::size_t(i)].path);
        host.stills[jobs[std::size_t(i)].path] = std::make_unique<Still>(i % (kRuns / 2));
    }
    const auto run = [process](Job &job) {
        try {
            process->run(job.path, job.settings, &job.result);
        } catch (const VException &failure) {
            job.failure = failure.message;
        } catch (const std::exception &failure) {
            job.failure = QString::fromLatin1(failure.what());
        }
    };
    std::vector<std::thread> team;
    for (std::size_t i = 0; i < kRuns; ++i)
        team.emplace_back([&run, &job = jobs[i]] { run(job); });
    for (std::thread &member : team)
        member.join();
    run(jobs.back());

    const auto content = [](const Job &job) {
        QFile file(job.result);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    for (std::size_t i = 0; i <= kRuns; ++i) {
        EXPECT_EQ(jobs[i].failure, QString());
        EXPECT_GT(content(jobs[i]).size(), 1000) << i;
        EXPECT_TRUE(content(jobs[i]) == content(jobs[i % (kRuns / 2)])) << i;
        process->destroySettings(jobs[i].settings);
    }
    EXPECT_FALSE(content(jobs[0]) == content(jobs[1]));
    const VImage *const before = host.stills[jobs[0].path]->acquireFull(1);
    const QImage after(jobs[0].result);
    ASSERT_EQ(after.size(), QSize(kWidth, kHeight));
    EXPECT_LT(qGray(after.pixel(kWidth / 2, 25)), *before->PixelAddress(kWidth / 2, 25) - 10) << "haze was removed";
    delete loader.instance();
}

} // namespace
