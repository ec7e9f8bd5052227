#pragma once

#include <cstdint>

#include <QByteArray>
#include <QMutex>
#include <QObject>
#include <QString>
#include <QVector>

/// The table of known cameras (cameras.txt in the search path "Data"). The object represents the table and holds no rows. Fixed:
/// hosts rely on it, although nothing here reads the table.
class CameraProperties : public QObject
{
    Q_OBJECT
public:
    struct Row
    {
        QString brand;
        QString name;
        double sensorScale; ///< Ratio of the full-frame (36 x 24 mm) diagonal to the sensor's.
    };

    /// Rows of the table's text, in order: three cells separated by ';', in the local 8-bit encoding. Blank lines, comments
    /// (lines that begin with '#', or the rest of the third cell after a '#') and malformed lines are skipped.
    static QVector<Row> read(const QByteArray &text);
    /// Scale of the first matching row, or 0. `brand` and `model` are the camera's own names (NIKON CORPORATION, NIKON D3100): a
    /// row matches if `brand` begins with the row's brand and a word of `model` begins with the row's name without cutting a
    /// number short.
    static double sensorScale(const QVector<Row> &rows, const QString &brand, const QString &model);

    CameraProperties() = default;

    std::int32_t value = 0; ///< Spare.
    QMutex mutex;           ///< Spare.
    QString text;           ///< Spare.
};

/// The object of the process, made when the library is loaded.
extern CameraProperties cameraProperties;
