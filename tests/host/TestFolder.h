#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QByteArray>
#include <QJsonObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include "VImage.h"

/// The output and the exit status of the program.
struct Said
{
    int code;
    QString out;
    QString err;

    /// The lines of the standard output of --json.
    std::vector<QJsonObject> objects() const;
};

/// A temporary folder with photographs made in code, in which the program is run as a user would, without a locale or stored
/// settings.
class TestFolder
{
public:
    QString path(const QString &name) const { return folder.filePath(name); }
    /// The names of the files in it, sorted, without the configuration.
    QStringList files() const;
    QByteArray content(const QString &name) const;
    void write(const QString &name, const QByteArray &bytes) const;

    /// A hazy slope in the format of the suffix: colours that fade towards a light grey from bottom to top.
    void photograph(const QString &name, int width = 48, int height = 32, unsigned short type = VImage::Rgb, int bits = 8) const;
    /// Gives one pixel of a float photograph a colour that is not a number.
    void spoil(const QString &name) const;
    /// A 16-bit camera raw file (DNG with one Bayer plane) lying on its side.
    void raw(const QString &name, int width = 64, int height = 48) const;
    /// How far apart the darkest and lightest sample of a picture are, as a fraction of its full scale.
    double contrast(const QString &name) const;

    Said run(const QStringList &arguments, const QStringList &environment = {}) const;
    /// The same through the shell, "$V" being the program.
    Said shell(const QString &script, const QStringList &environment = {}) const;

    /// Starts the program without waiting for it.
    std::unique_ptr<QProcess> launch(const QStringList &arguments) const;

private:
    std::unique_ptr<QProcess> launch(const QString &program, const QStringList &arguments, const QStringList &environment) const;
    Said start(const QString &program, const QStringList &arguments, const QStringList &environment) const;
    QTemporaryDir folder;
};

/// Readable in messages of the tests.
inline std::ostream &operator<<(std::ostream &stream, const QString &text)
{
    return stream << text.toStdString();
}
