// How the process of a host that has loaded the plug-in ends: with the host's exit code, and without any output.

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class End : public testing::Test
{
protected:
    /// Returns what the program wrote to its standard output. Expects this exit code, and `complaint` on its standard error, or
    /// nothing there if it is null.
    QString run(const QString &program, const QStringList &arguments, int exitCode, const QString &complaint = QString())
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME", folder.path());
        environment.insert("XDG_RUNTIME_DIR", folder.path());
        environment.insert("LC_ALL", "C");
        process.setProcessEnvironment(environment);
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(300000)) << "the program hangs";
        const QString said = QString::fromUtf8(process.readAllStandardError());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << qPrintable(said);
        EXPECT_EQ(process.exitCode(), exitCode) << qPrintable(said);
        EXPECT_TRUE(complaint.isNull() ? said.isEmpty() : said.contains(complaint)) << qPrintable(said);
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    const QTemporaryDir folder;
};

TEST_F(End, OfTheExample)
{
    const QString photograph = folder.filePath("hills.png");
    const QString result = folder.filePath("hills_dehazed.png");
    const QString missing = folder.filePath("missing.png");
    const QString unreadable = "Can't read " + missing;
    QImage hills(48, 32, QImage::Format_RGB32);
    for (int y = 0; y < hills.height(); ++y)
        for (int x = 0; x < hills.width(); ++x)
            hills.setPixel(x, y, qRgb(210 - 3 * y, 210 - 2 * y, 220 - (x + y) % 5 * y));
    ASSERT_TRUE(hills.save(photograph));
    const struct
    {
        QStringList arguments;
        int exitCode;
        bool makesResult;
        QString complaint;
    } rows[] = {
        {{PLUGIN_FILE, photograph}, 0, true, {}},
        {{"--edit", "--accept", PLUGIN_FILE, photograph}, 0, true, {}},
        {{"--edit", "--cancel", PLUGIN_FILE, photograph}, 1, false, {}},
        {{PLUGIN_FILE, missing, photograph}, 1, true, unreadable},
        {{"--edit", "--accept", PLUGIN_FILE, missing}, 1, false, unreadable},
        {{photograph}, 1, false, photograph},
        {{}, 1, false, "host: "},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(qPrintable(row.arguments.join(' ')));
        QFile::remove(result);
        EXPECT_EQ(run(EXAMPLE_HOST, row.arguments, row.exitCode, row.complaint), row.makesResult ? result + '\n' : QString());
        EXPECT_EQ(QFile::exists(result), row.makesResult);
    }
}

TEST_F(End, OfAHostThatLeavesItsPageBehind)
{
    const char *const rows[][3] = {
        {"return", "wizard", "shown"},   {"return", "wizard", "computing"}, {"return", "alone", "shown"},
        {"exit", "wizard", "computing"}, {"unload", "alone", "shown"},
    };
    for (const auto &[end, page, preview] : rows) {
        SCOPED_TRACE(std::string(end) + ' ' + page + ' ' + preview);
        run(ENDING_HOST, {end, page, preview}, 7);
    }
}

} // namespace
