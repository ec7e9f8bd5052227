#pragma once

#include <QString>

#include "BatchItem.h"
#include "VImage.h"

/// Writes an image as VImage::Save does with quality -1, in the format of the file name's suffix and with the metadata of another
/// file, but with the packing that is chosen. `fileName` is written beside its place and named when it is complete. Throws
/// VException.
void encodeResult(VImage &image, const QString &fileName, const ResultPacking &packing, const QString &metadataSource);
