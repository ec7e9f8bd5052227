#pragma once

#include <cstdint>

#include <QByteArray>
#include <QMutex>
#include <QObject>
#include <QString>
#include <QVector>

/// The table of known lenses (lensid.txt in the search path "Data"). The object stands for the table and holds no rows.
class LensIDProperties : public QObject
{
    Q_OBJECT
public:
    enum Kind { Standard = 0, Fisheye = 1, TiltShift = 2 };
    struct Row
    {
        QString identifier; ///< Numbers separated by one blank.
        QString brand;      ///< Of the camera system.
        QString name;
        Kind kind;
    };

    /// Rows of the table's text, in its order: four cells separated by ';', in the local 8-bit set. Lines that begin with '#',
    /// blank lines and lines that are no row are left out.
    static QVector<Row> read(const QByteArray &text);
    /// The first row of that brand and identifier, or null. An identifier is shortest and longest focal length and lens number;
    /// for Nikon also the apertures at both ends. Numbers are compared as numbers: 4 is 4.0.
    static const Row *find(const QVector<Row> &rows, const QString &brand, const QString &identifier);

    LensIDProperties() = default;

    std::int32_t value = 0; ///< Spare.
    QMutex mutex;           ///< Spare.
    QString text;           ///< Spare.
};

/// The object of the process, made when the library is loaded.
extern LensIDProperties lensIDProperties;
