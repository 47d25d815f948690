#pragma once

#include "core/base/outcome.h"
#include "core/files/file_descriptor.h"
#include "ui/drawing/board_picture.h"

#include <filesystem>

class QImage;

namespace tessaly {

enum class PictureFormat { Bmp, Png };

/// PNG for a name that ends in ".png", in any capitals, else BMP.
PictureFormat pictureFormatOf(const std::filesystem::path& path);

/// Writes a picture to a file, whole or not at all.
Outcome writePicture(const std::filesystem::path& path, const QImage& picture, PictureFormat format,
                     const LockWait& wait = {});

/// Whether a name ends in ".png", ".svg" or ".pdf", in any capitals.
bool isPictureDocument(const std::filesystem::path& path);

/// Writes a picture of the board, `scale` pixels (at 96 dpi) a board unit, as its name says, whole
/// or not at all.
Outcome writePictureDocument(const std::filesystem::path& path, const BoardPicture& picture,
                             double scale);

} // namespace tessaly
