#pragma once

#include <functional>
#include <memory>

#include "OpenPhoto.h"
#include "PictureRequest.h"

// Tests of the workspace's photographs and pictures: they run with an application that lends the engine its services.

/// Processes events until the condition holds; false after two minutes, which is enough for the engine under a sanitizer.
bool eventually(const std::function<bool()> &holds);

/// All of the photograph.
PictureRequest requestOf(const std::shared_ptr<const OpenPhoto> &photo, int strength, double scale = 1);
