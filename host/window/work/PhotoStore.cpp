#include "PhotoStore.h"

class PhotoStore::Worker
{
};
PhotoStore::PhotoStore(QObject *parent) : PhotoStore({}, parent) {}
PhotoStore::PhotoStore(FreeMemory, QObject *parent) : QObject(parent) {}
PhotoStore::~PhotoStore() = default;
void PhotoStore::show(const QString &, const QStringList &) {}
void PhotoStore::forget(const QString &) {}
std::shared_ptr<const OpenPhoto> PhotoStore::photo(const QString &) const
{
    return nullptr;
}
