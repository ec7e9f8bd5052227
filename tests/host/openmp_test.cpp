// Which OpenMP run-time the process computes with. LibRaw is linked to that of g++: its file is loaded, but none of its functions
// is called, since LLVM's, which answers to the same names, stands before it.

#include <map>
#include <set>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <omp.h>

namespace {

TEST(OpenMP, AllCodeOfTheProcessRunsOnLLVMs)
{
    static_assert(sizeof(omp_lock_t) == sizeof(void *), "the header is not LLVM's");
    const QTemporaryDir folder;
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_BIND_NOW", "1");
    environment.insert("LD_DEBUG", "bindings");
    environment.insert("LD_DEBUG_OUTPUT", folder.filePath("bindings"));
    program.setProcessEnvironment(environment);
    program.start(VEILAWAY, {"--version"}); // names the plug-in's version: it is loaded
    ASSERT_TRUE(program.waitForFinished(60000));
    ASSERT_EQ(program.exitCode(), 0);

    static const QRegularExpression binding(R"(binding file (.+) \[0\] to (.+) \[0\]: normal symbol `(GOMP_|omp_|kmp_|__kmpc_))");
    std::map<std::string, std::set<std::string>> runTimes; // by who calls
    for (const QString &name : QDir(folder.path()).entryList(QDir::Files)) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        while (!file.atEnd()) {
            const auto match = binding.match(QString::fromUtf8(file.readLine()));
            const auto fileName = [&](int group) {
                return QFileInfo(match.captured(group)).fileName().section('.', 0, 0).toStdString();
            };
            if (match.hasMatch() && !match.captured(1).contains("omp.so"))
                runTimes[fileName(1)].insert(fileName(2));
        }
    }
    EXPECT_TRUE(runTimes.count("veilaway") && runTimes.count("Nimbra")) << "none of them is bound to any run-time";
    for (const auto &[caller, used] : runTimes)
        EXPECT_EQ(used, std::set<std::string>{"libomp"}) << caller;
}

} // namespace
