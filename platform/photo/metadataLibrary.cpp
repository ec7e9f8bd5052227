#include "metadataLibrary.h"

#include <mutex>

#include <exiv2/exiv2.hpp>

namespace {

void lockXmp(void *mutex, bool take)
{
    auto *lock = static_cast<std::recursive_mutex *>(mutex);
    take ? lock->lock() : lock->unlock();
}

} // namespace

void startMetadataLibrary()
{
    static std::recursive_mutex xmpMutex;
    Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
    Exiv2::XmpParser::initialize(lockXmp, &xmpMutex);
}
