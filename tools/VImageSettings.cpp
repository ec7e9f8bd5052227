#include "VImageSettings.h"

VImageSettings *imageSettings = nullptr;
