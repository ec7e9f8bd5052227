#pragma once

#include <cstdint>

#include <QByteArray>
#include <QMutex>
#include <QObject>
#include <QString>
#include <QVector>

/// The table of known cameras (cameras.txt in the search path "Data"). The object stands for the table and holds no rows.
class CameraProperties : public QObject
{
    Q_OBJECT
public:
    struct Row
    {
        QString brand;
        QString name;
        double sensorScale; ///< Factor between the sensor and the full frame of 36 x 24 mm, by their diagonals.
    };

    /// Rows of the table's text, in its order: three cells separated by ';', in the local 8-bit set. Blank lines are left out,
    /// and so are comments (from a '#' in the first column, or behind the third cell) and lines that are no row.
    static QVector<Row> read(const QByteArray &text);
    /// Scale of the first row that matches, or 0. `brand` and `model` are what the camera calls itself (NIKON CORPORATION, NIKON
    /// D3100): a row matches if the brand begins with its brand and a word of the model with its name, a number of which is not
    /// cut short.
    static double sensorScale(const QVector<Row> &rows, const QString &brand, const QString &model);

    CameraProperties() = default;

    std::int32_t value = 0; ///< Spare.
    QMutex mutex;           ///< Spare.
    QString text;           ///< Spare.
};

/// The object of the process, made when the library is loaded.
extern CameraProperties cameraProperties;
