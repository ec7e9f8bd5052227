#include "VTempManager.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/mount.h>

#include "VException.h"
#include "VTempFileHandle.h"

namespace {

QString refusal(const QString &path, qint64 neededBytes)
{
    try {
        checkFileWritable(path, neededBytes, "here");
    } catch (const VException &failure) {
        EXPECT_EQ(failure.location, "here");
        return failure.message;
    }
    return QString();
}

const QString kFull = "Not enough free space on \"%1\" to finish operation";
const QString kLocked = "Cannot write into file \"%1\"";

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

TEST(CheckFileWritable, KeepsContentAndCreatesMissingFiles)
{
    const QTemporaryDir folder;
    const QString made = folder.filePath("made.tif");
    EXPECT_EQ(refusal(made, 1), QString());
    EXPECT_EQ(QFile(made).size(), 0);
    EXPECT_TRUE(QFile::exists(made));
    write(made, "content");
    EXPECT_EQ(refusal(made, 1), QString());
    EXPECT_EQ(QFile(made).size(), 7);
}

TEST(CheckFileWritable, NamesTheObstacle)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir("folder"));
    EXPECT_EQ(refusal(folder.filePath("folder"), 1), kLocked.arg(folder.filePath("folder"))); // even root can't write into one
    EXPECT_EQ(freeDiskSpace("/no/such/volume"), -1);
    EXPECT_EQ(refusal("/no/such/volume/f.tif", 1), kLocked.arg("/no/such/volume/f.tif"));
    EXPECT_EQ(refusal("no/f.tif", 1), kLocked.arg(QDir::currentPath() + "/no/f.tif"));
    EXPECT_EQ(refusal(folder.filePath("f.tif"), INT64_MAX), kFull.arg(folder.path()));
    EXPECT_FALSE(QFile::exists(folder.filePath("f.tif")));
    // A volume with no free byte that accepts no files: exactly the free size passes, one byte more does not.
    ASSERT_EQ(freeDiskSpace("/proc"), 0);
    EXPECT_EQ(refusal("/proc/f.tif", 0), kLocked.arg("/proc/f.tif"));
    EXPECT_EQ(refusal("/proc/f.tif", 1), kFull.arg("/proc"));
}

TEST(CheckFileWritable, CountsToTheByteOnASmallDisk)
{
    const QTemporaryDir folder;
    const QByteArray path = folder.path().toLocal8Bit();
    if (mount("none", path.constData(), "tmpfs", 0, "size=64k") != 0)
        GTEST_SKIP() << "a small disk can't be mounted here";
    const qint64 freeBytes = freeDiskSpace(folder.path());
    EXPECT_EQ(freeBytes, 65536);
    EXPECT_EQ(refusal(folder.filePath("f.tif"), freeBytes), QString());
    EXPECT_EQ(refusal(folder.filePath("f.tif"), freeBytes + 1), kFull.arg(folder.path()));
    EXPECT_EQ(mount("none", path.constData(), "tmpfs", MS_REMOUNT | MS_RDONLY, "size=64k"), 0);
    EXPECT_EQ(refusal(folder.filePath("f.tif"), 1), kLocked.arg(folder.filePath("f.tif")));
    umount(path.constData());
}

TEST(VTempManager, RemovesOnlyEmptyFolders)
{
    const QTemporaryDir root;
    const auto add = [&](const char *name) {
        ASSERT_TRUE(QDir(root.path()).mkpath(name));
        tempManager->folders.push_back(new VTempFolder{root.filePath(QString(name).section('/', 0, 0))});
    };
    releaseTempManager(); // harmless without one
    initTempManager(nullptr);
    EXPECT_EQ(tempManager->folderName, "OMBRE");
    EXPECT_EQ(tempManager->roots, QStringList(QDir::tempPath()));
    add("full");
    write(root.filePath("full/file"), "x");
    add("outer/inner");
    tempManager->folders.push_back(nullptr);
    tempManager->folders.push_back(new VTempFolder{root.filePath("missing")});
    add("empty");
    releaseTempManager();
    EXPECT_EQ(QDir(root.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList({"full", "outer"}));
    EXPECT_EQ(tempManager, nullptr);
}

TEST(VTempManager, KeepsALentManager)
{
    VTempManager lent;
    initTempManager(&lent);
    initTempManager(nullptr);
    EXPECT_EQ(tempManager, &lent);
    releaseTempManager();
    EXPECT_EQ(lent.folderName, "OMBRE");
}

TEST(VTempFileHandle, RemovesItsFile)
{
    const QTemporaryDir root;
    write(root.filePath("file"), "x");
    {
        VTempFileHandle handle(root.filePath("file"));
        const VTempFileHandle none;
        const VTempFileHandle missing(root.filePath("missing"));
    }
    EXPECT_FALSE(QFile::exists(root.filePath("file")));
    EXPECT_NE(tempManager, nullptr);
    releaseTempManager();
}

} // namespace
