#pragma once

#include <cstdint>

#include <QByteArray>
#include <QMutex>
#include <QObject>
#include <QString>
#include <QVector>

/// The table of known lenses (lensid.txt in the search path "Data"). The object represents the table and holds no rows. Fixed:
/// hosts rely on it, although nothing here reads the table.
class LensIDProperties : public QObject
{
    Q_OBJECT
public:
    enum Kind { Standard = 0, Fisheye = 1, TiltShift = 2 };
    struct Row
    {
        QString identifier; ///< Numbers separated by one blank.
        QString brand;      ///< The camera system's brand.
        QString name;
        Kind kind;
    };

    /// Rows of the table's text, in order: four cells separated by ';', in the local 8-bit encoding. Lines that begin with '#',
    /// blank lines and malformed lines are skipped.
    static QVector<Row> read(const QByteArray &text);
    /// The first row with that brand and identifier, or null. An identifier holds the shortest and longest focal length and the
    /// lens number; for Nikon also the apertures at both ends. Its parts are compared as numbers: 4 equals 4.0.
    static const Row *find(const QVector<Row> &rows, const QString &brand, const QString &identifier);

    LensIDProperties() = default;

    std::int32_t value = 0; ///< Spare.
    QMutex mutex;           ///< Spare.
    QString text;           ///< Spare.
};

/// The object of the process, made when the library is loaded.
extern LensIDProperties lensIDProperties;
