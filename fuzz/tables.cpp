#include "CameraProperties.h"
#include "FuzzTarget.h"
#include "LensIDProperties.h"

// The tables of cameras and lenses. The first line, "brand;model or identifier", is looked up in the table of the lines below it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t count)
{
    const QByteArray input(reinterpret_cast<const char *>(bytes), int(count));
    const QByteArray question = input.left(input.indexOf('\n'));
    const QByteArray text = input.mid(question.size());
    const QString brand = QString::fromLocal8Bit(question.left(question.indexOf(';')));
    const QString name = QString::fromLocal8Bit(question.mid(question.indexOf(';') + 1));

    const auto cameras = CameraProperties::read(text);
    for (const CameraProperties::Row &row : cameras)
        require(row.sensorScale > 0 && !row.name.isEmpty(), "a row of cameras has a name and a scale");
    require(CameraProperties::sensorScale(cameras, brand, name) >= 0, "a scale is positive, or 0 for none");
    if (!cameras.isEmpty())
        require(CameraProperties::sensorScale(cameras, cameras[0].brand, cameras[0].name) == cameras[0].sensorScale,
                "the first row is found by its own words");

    const auto lenses = LensIDProperties::read(text);
    for (const LensIDProperties::Row &row : lenses)
        require(LensIDProperties::find(lenses, row.brand, row.identifier) != nullptr, "a lens is found by its own words");
    LensIDProperties::find(lenses, brand, name);
    return 0;
}
