// Pictures as files: the bytes of a bitmap file and of a JPEG file.
#pragma once

#include <string>

#include "platform/Bitmap.h"
#include "rtl/Exceptions.h"

namespace rux {

using EInvalidGraphic = TNamedException<Exception, "EInvalidGraphic">;

/// A bitmap file of 24 bits a pixel.
std::string BitmapFileBytes(const TBitmap& picture);
/// At the toolkit's default quality. Raises EInvalidGraphic with the library's own words for a picture that
/// it refuses, such as one that is empty or has a side of more than 65,500 pixels.
std::string JpegFileBytes(const TBitmap& picture);

}  // namespace rux
