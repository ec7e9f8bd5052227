#include "TestFolder.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QtEndian>

#include "PhotoLoader.h"

std::vector<QJsonObject> Said::objects() const
{
    std::vector<QJsonObject> all;
    for (const QString &line : out.split('\n', Qt::SkipEmptyParts))
        all.push_back(QJsonDocument::fromJson(line.toUtf8()).object());
    return all;
}

QStringList TestFolder::files() const
{
    return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

QByteArray TestFolder::content(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestFolder::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
}

void TestFolder::photograph(const QString &name, int width, int height, unsigned short type, int bits) const
{
    VImage image(width, height, type, bits);
    const int channels = image.Bitmap()->componentsPerPixel;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (int c = 0; c < channels; ++c) {
                const double air = 0.8 * (1 - double(y) / height), scene = (x / 5 + y / 3 + c) % 3 / 3.0;
                const double value = c == 3 ? 1 : air * 0.9 + (1 - air) * scene;
                unsigned char *at = image.PixelAddress(x, y);
                if (bits == 8)
                    at[c] = static_cast<unsigned char>(std::lround(value * 255));
                else if (bits == 16)
                    reinterpret_cast<quint16 *>(at)[c] = static_cast<quint16>(std::lround(value * 65535));
                else
                    reinterpret_cast<float *>(at)[c] = float(value);
            }
    image.Save(path(name), QFileInfo(name).suffix(), -1, QString());
}

void TestFolder::spoil(const QString &name) const
{
    const auto photo = PhotoLoader::decode(path(name));
    VImage &image = photo->image();
    *reinterpret_cast<float *>(image.PixelAddress(image.Width() / 2, image.Height() / 2)) =
        std::numeric_limits<float>::quiet_NaN();
    image.Save(path(name), QFileInfo(name).suffix(), -1, QString());
}

double TestFolder::contrast(const QString &name) const
{
    const auto photo = PhotoLoader::decode(path(name));
    VImage grey;
    photo->image().ConvertTo(grey, VImage::Grey, 8);
    int lowest = 255, highest = 0;
    for (int y = 0; y < grey.Height(); ++y)
        for (int x = 0; x < grey.Width(); ++x) {
            lowest = std::min<int>(lowest, *grey.PixelAddress(x, y));
            highest = std::max<int>(highest, *grey.PixelAddress(x, y));
        }
    return (highest - lowest) / 255.0;
}

namespace {

struct Entry
{
    quint16 tag, type; // of TIFF: 1 byte, 2 text, 3 short, 4 long, 5 rational, 10 signed rational
    QByteArray value;
};

template<typename T>
QByteArray numbers(std::initializer_list<T> values)
{
    QByteArray bytes;
    for (const T value : values) {
        const T little = qToLittleEndian(value);
        bytes.append(reinterpret_cast<const char *>(&little), sizeof little);
    }
    return bytes;
}

} // namespace

void TestFolder::raw(const QString &name, int width, int height) const
{
    QByteArray pixels;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            pixels += numbers<quint16>({quint16(9000 + 300 * ((x / 8 + y / 8) % 2 * 40 + y))});
    const quint32 pixelStart = 8;
    const std::vector<Entry> entries{
        {254, 4, numbers<quint32>({0})},
        {256, 4, numbers<quint32>({quint32(width)})},
        {257, 4, numbers<quint32>({quint32(height)})},
        {258, 3, numbers<quint16>({16})},
        {259, 3, numbers<quint16>({1})},
        {262, 3, numbers<quint16>({32803})}, // colour filter array
        {271, 2, QByteArray("Acme\0", 5)},
        {272, 2, QByteArray("One\0", 4)},
        {273, 4, numbers<quint32>({pixelStart})},
        {274, 3, numbers<quint16>({6})},
        {277, 3, numbers<quint16>({1})},
        {278, 4, numbers<quint32>({quint32(height)})},
        {279, 4, numbers<quint32>({quint32(pixels.size())})},
        {33421, 3, numbers<quint16>({2, 2})},
        {33422, 1, QByteArray("\0\1\1\2", 4)}, // RGGB
        {50706, 1, QByteArray("\1\4\0\0", 4)},
        {50708, 2, QByteArray("Acme One\0", 9)},
        {50717, 4, numbers<quint32>({65535})},
        {50721, 10, numbers<qint32>({1, 1, 0, 1, 0, 1, 0, 1, 1, 1, 0, 1, 0, 1, 0, 1, 1, 1})},
        {50728, 5, numbers<quint32>({1, 1, 1, 1, 1, 1})},
    };
    constexpr int kSizes[] = {0, 1, 1, 2, 4, 8, 0, 0, 0, 0, 8};
    QByteArray directory = numbers<quint16>({quint16(entries.size())}), values;
    const quint32 valueStart = pixelStart + quint32(pixels.size()) + 2 + 12 * quint32(entries.size()) + 4;
    for (const Entry &entry : entries) {
        directory += numbers<quint16>({entry.tag, entry.type});
        directory += numbers<quint32>({quint32(entry.value.size() / kSizes[entry.type])});
        if (entry.value.size() <= 4) {
            directory += entry.value.leftJustified(4, '\0');
        } else {
            directory += numbers<quint32>({valueStart + quint32(values.size())});
            values += entry.value;
            if (values.size() % 2)
                values += '\0';
        }
    }
    write(name, QByteArray("II\x2a\0", 4) + numbers<quint32>({pixelStart + quint32(pixels.size())}) + pixels + directory +
                    numbers<quint32>({0}) + values);
}

std::unique_ptr<QProcess> TestFolder::launch(const QString &program, const QStringList &arguments,
                                             const QStringList &environment) const
{
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"LANG", "LANGUAGE", "LC_MESSAGES", "LC_CTYPE", "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        variables.remove(name);
    variables.insert("LC_ALL", "C");
    variables.insert("XDG_CONFIG_HOME", path("config"));
    variables.insert("V", VEILAWAY);
    for (const QString &variable : environment)
        variables.insert(variable.section('=', 0, 0), variable.section('=', 1));
    process->setProcessEnvironment(variables);
    process->setWorkingDirectory(folder.path());
    process->start(program, arguments);
    return process;
}

std::unique_ptr<QProcess> TestFolder::launch(const QStringList &arguments) const
{
    return launch(VEILAWAY, arguments, {});
}

Said TestFolder::start(const QString &program, const QStringList &arguments, const QStringList &environment) const
{
    const auto process = launch(program, arguments, environment);
    if (!process->waitForFinished(300000))
        return {-1, QString(), "The program did not end: " + process->errorString()};
    return {process->exitStatus() == QProcess::NormalExit ? process->exitCode() : -2, process->readAllStandardOutput(),
            process->readAllStandardError()};
}

Said TestFolder::run(const QStringList &arguments, const QStringList &environment) const
{
    return start(VEILAWAY, arguments, environment);
}

Said TestFolder::shell(const QString &script, const QStringList &environment) const
{
    return start("/bin/sh", {"-c", script}, environment);
}
