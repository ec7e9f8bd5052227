#include "ScreenColours.h"

struct ScreenColours::Conversion
{
};
ScreenColours::ScreenColours(const QByteArray &screenProfile) : screen(screenProfile) {}
ScreenColours::~ScreenColours() = default;
QByteArray ScreenColours::profileOfScreen()
{
    return {};
}
void ScreenColours::convert(const VImage &, const QByteArray &, QImage &) {}
