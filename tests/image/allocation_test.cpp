// Memory runs out at each place in turn: what is left behind is as the headers say, and the next run is not affected.

#include <cstring>
#include <functional>
#include <memory>
#include <new>
#include <tuple>
#include <utility>
#include <vector>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include "FailingAllocations.h"
#include "HazeReference.h"
#include "HazeState.h"
#include "RemoveHaze.h"
#include "VException.h"
#include "addMetadata.h"
#include "gfl.h"
#include "gflCallbacks.h"
#include "threadCount.h"
#include "workingForm.h"

using hazeReference::firstDifference;
using hazeReference::Kind;
using hazeReference::Picture;

namespace {

enum class End { Done, NoMemory, Other };

/// Runs `work` while the allocation with this number fails. NoMemory is only what reports that memory was missing.
End endOf(const std::function<void()> &work, long number)
{
    const FailingAllocations armed(number);
    try {
        work();
        return End::Done;
    } catch (const std::bad_alloc &) {
        return End::NoMemory;
    } catch (const VException &failure) {
        return failure.message == "Not enough memory" || failure.message.contains("GFL_ERROR_NO_MEMORY") ? End::NoMemory
                                                                                                         : End::Other;
    } catch (...) {
        return End::Other;
    }
}

/// Fails each allocation of `work` in turn, after `prepare`; `check` looks at what is left. Once no allocation fails, `work` must
/// succeed.
void sweep(const std::function<void()> &prepare, const std::function<void()> &work, const std::function<void(End)> &check)
{
    if (testing::Test::HasFailure())
        return;
    long number = 0, needed = 0;
    do {
        prepare();
        const End end = endOf(work, ++number);
        needed = FailingAllocations::count();
        SCOPED_TRACE(testing::Message() << "allocation " << number << " of " << needed);
        EXPECT_NE(end, End::Other);
        check(end);
        if (needed < number) {
            EXPECT_EQ(end, End::Done);
        }
    } while (needed >= number && !testing::Test::HasFailure());
    EXPECT_GT(number, 1) << "not one allocation was counted";
}

class Allocation : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        ASSERT_EQ(gflLibraryInitEx(gflAllocCallback, gflReallocCallback, gflFreeCallback, nullptr), GFL_NO_ERROR);
    }
    static void TearDownTestSuite() { gflLibraryExit(); }
    void SetUp() override { threadCount = 2; }
    void TearDown() override { threadCount = 1; }

    static constexpr int kWidth = 32;
    static constexpr int kHeight = 24;
    static constexpr std::size_t kPixels = std::size_t(kWidth) * kHeight;
    Picture picture = hazeReference::makePicture(kWidth, kHeight, Kind::Smooth);
    const std::vector<float> before = picture.samples;

    void expectUntouched() const { EXPECT_EQ(firstDifference(picture.samples.data(), before.data(), before.size()), ""); }
};

TEST_F(Allocation, ConversionAndResamplingGiveAWholeImageOrNone)
{
    VImage grey(kWidth, kHeight, VImage::Grey, 16, /*clear=*/true);
    const struct
    {
        const char *name;
        std::function<void(VImage &)> make;
    } rows[] = {
        {"working form", [&](VImage &target) { toWorkingForm(grey, target); }},
        {"two steps", [&](VImage &target) { picture.image->ConvertTo(target, VImage::Grey, 8); }},
        {"smaller", [&](VImage &target) { picture.image->Resample(target, 20, 15); }},
        {"larger", [&](VImage &target) { picture.image->Resample(target, 90, 50); }},
        {"copy", [&](VImage &target) { picture.image->Resample(target, kWidth, kHeight); }},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        VImage expected;
        row.make(expected);
        std::unique_ptr<VImage> made;
        sweep([&] { made = std::make_unique<VImage>(); }, [&] { row.make(*made); },
              [&](End end) {
                  for (int y = 0; end == End::Done && y < expected.Height(); ++y)
                      ASSERT_EQ(std::memcmp(made->PixelAddress(0, y), expected.PixelAddress(0, y),
                                            std::size_t(expected.Width()) * expected.Bitmap()->bytesPerPixel),
                                0);
              });
        expectUntouched();
    }
}

TEST_F(Allocation, TheDarkChannel)
{
    std::unique_ptr<float[]> map;
    float airlight[3];
    sweep([&] { std::fill_n(airlight, 3, -1.0f); }, [&] { map.reset(picture.image->HazeDarkChannel(airlight)); },
          [&](End end) { EXPECT_EQ(airlight[0] == -1.0f, end == End::NoMemory); });
    EXPECT_NE(map, nullptr);
    expectUntouched();
}

TEST_F(Allocation, MattingLeavesItsResultOrItsInputTimesLambda)
{
    const std::vector<float> given = hazeReference::makeMap(kWidth, kHeight);
    std::vector<float> expected = given, scaled = given, map;
    ASSERT_TRUE(picture.image->HazeMatting(expected.data()));
    for (float &value : scaled)
        value = float(double(value) * 0.001);
    bool solved = false;
    int quiet = 0;
    sweep(
        [&] {
            map = given;
            solved = false;
        },
        [&] { solved = picture.image->HazeMatting(map.data()); },
        [&](End end) {
            if (end != End::Done)
                return;
            quiet += !solved;
            const std::vector<float> &wanted = solved ? expected : scaled;
            EXPECT_EQ(firstDifference(map.data(), wanted.data(), kPixels), "");
        });
    EXPECT_TRUE(solved);
    EXPECT_GT(quiet, 100) << "the solver's own";
    expectUntouched();
}

TEST_F(Allocation, UpsamplingThroughThePyramid)
{
    VImage low;
    picture.image->Resample(low, kWidth / 5, kHeight / 5); // three levels
    std::vector<float> lowMap = hazeReference::makeMap(kWidth / 5, kHeight / 5);
    const std::unique_ptr<float[]> expected(picture.image->HazeUpsample(lowMap.data(), &low));
    std::unique_ptr<float[]> map;
    sweep([&] { map.reset(); }, [&] { map.reset(picture.image->HazeUpsample(lowMap.data(), &low)); },
          [&](End end) {
              if (end == End::Done) {
                  EXPECT_EQ(firstDifference(map.get(), expected.get(), kPixels), "");
              }
          });
    expectUntouched();
}

TEST_F(Allocation, TheWholeEngineLeavesImageAndStateAsTheyWere)
{
    HazeState state = {70, {}, nullptr};
    const auto run = [&] { RemoveHaze(*picture.image, state); };
    ASSERT_EQ(endOf(run, 0), End::Done);
    const long needed = FailingAllocations::count();
    const std::vector<float> result = picture.samples;
    const auto startAnew = [&] {
        picture.samples = before;
        delete[] std::exchange(state.transmission, nullptr);
    };
    // All of the stages' thousands fail above, on small images; here are those of the driver, and some of each stage.
    std::vector<long> numbers;
    for (long number = 1; number < needed; number += number < 4 ? 1 : number)
        numbers.push_back(number);
    for (long number = needed; number > needed - 4; --number)
        numbers.push_back(number);
    for (const long number : numbers) {
        startAnew();
        const End end = endOf(run, number);
        SCOPED_TRACE(testing::Message() << "allocation " << number << " of " << needed);
        EXPECT_NE(end, End::Other);
        // If the solver runs out of memory, the engine ends quietly.
        EXPECT_EQ(state.transmission, nullptr);
        expectUntouched();
    }
    startAnew();
    EXPECT_EQ(endOf(run, 0), End::Done);
    EXPECT_EQ(firstDifference(picture.samples.data(), result.data(), result.size()), "");
    startAnew();
}

TEST_F(Allocation, AFileIsReadAndWrittenCompletelyOrNotAtAll)
{
    QTemporaryDir folder;
    const auto content = [](const QString &path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const auto openFiles = [] { return QDir("/proc/self/fd").entryList(QDir::Files | QDir::System).size(); };
    const int filesBefore = openFiles();
    for (const char *suffix : {"jpg", "png", "tif", "hdr", "exr", "psd"}) {
        SCOPED_TRACE(suffix);
        const bool carries = QString(suffix) != "hdr" && QString(suffix) != "exr";
        const QString source = folder.filePath(QStringLiteral("source.") + suffix);
        const QString target = folder.filePath(QStringLiteral("target.") + suffix);
        VImage image;
        picture.image->ConvertTo(image, VImage::Rgb, carries ? 8 : 32);
        image.Save(source, suffix, -1, QString());
        if (carries)
            addMetadata(source);
        const QByteArray sourceBytes = content(source);
        const auto save = [&] {
            VImage fresh;
            fresh.Assign(image);
            fresh.Save(target, suffix, -1, source);
        };
        save();
        const QByteArray whole = content(target);
        bool older = false;
        sweep(
            [&] {
                older = !older;
                QFile::remove(target);
                if (older)
                    QFile::copy(source, target);
            },
            save,
            [&](End end) {
                EXPECT_EQ(content(target), end == End::Done ? whole : older ? sourceBytes : QByteArray());
                EXPECT_EQ(content(source), sourceBytes);
                EXPECT_EQ(openFiles(), filesBefore);
                EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), QFile::exists(target) ? 2 : 1);
            });

        GflLoadParams params;
        gflGetDefaultLoadParams(&params);
        params.flags |= GFL_LOAD_METADATA;
        GflBitmap *read = nullptr;
        int code = GFL_NO_ERROR;
        const QByteArray name = QFile::encodeName(target);
        const auto load = [&] { code = gflLoadBitmapUTF8(name.constData(), &read, &params, nullptr); };
        const auto blocks = [&] {
            return std::make_tuple(gflBitmapHasICCProfile(read), gflBitmapHasIPTC(read), gflBitmapHasEXIF(read));
        };
        load();
        const auto expected = blocks();
        sweep([&] { gflFreeBitmap(std::exchange(read, nullptr)); }, load,
              [&](End) {
                  EXPECT_EQ(code, read ? GFL_NO_ERROR : GFL_ERROR_NO_MEMORY);
                  EXPECT_TRUE(!read || blocks() == expected);
              });
        gflFreeBitmap(read);
        QFile::remove(source);
        QFile::remove(target);
    }
}

} // namespace
