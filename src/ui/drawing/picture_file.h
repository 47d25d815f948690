#pragma once

#include "core/base/outcome.h"

#include <filesystem>

class QImage;

namespace tessaly {

enum class PictureFormat { Bmp, Png };

/// PNG for a name that ends in ".png", in any capitals, else BMP.
PictureFormat pictureFormatOf(const std::filesystem::path& path);

/// Writes a picture to a file, whole or not at all.
Outcome writePicture(const std::filesystem::path& path, const QImage& picture,
                     PictureFormat format);

} // namespace tessaly
