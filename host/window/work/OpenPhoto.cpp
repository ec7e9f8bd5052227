#include "OpenPhoto.h"

std::shared_ptr<const OpenPhoto> OpenPhoto::read(const QString &)
{
    return nullptr;
}
std::shared_ptr<const OpenPhoto> OpenPhoto::withMap() const
{
    return nullptr;
}
OpenPhoto::Memory OpenPhoto::memoryFor(const PhotoHead &)
{
    return {};
}
void OpenPhoto::recover(int, const QRect &, int, VImage &) const {}
void OpenPhoto::recover(VImage &, const float *, int) const
{
    (void)airlight;
}
