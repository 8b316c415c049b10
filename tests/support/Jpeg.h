// Reads a JPEG back with the library itself.
#pragma once

#include <cstdio>

#include <jpeglib.h>

#include <stdexcept>
#include <string>

#include "platform/Bitmap.h"

namespace rux::test {

/// The picture in a JPEG file's bytes; raises std::runtime_error with the library's words where there is
/// none.
inline TBitmap DecodedJpeg(const std::string& bytes) {
    jpeg_error_mgr errors;
    jpeg_decompress_struct jpeg;
    jpeg.err = jpeg_std_error(&errors);
    // The library is C, but has tables to unwind by; a frame of it that is left has nothing to free.
    errors.error_exit = [](j_common_ptr decoder) {
        char text[JMSG_LENGTH_MAX];
        decoder->err->format_message(decoder, text);
        jpeg_destroy(decoder);
        throw std::runtime_error(text);
    };
    jpeg_create_decompress(&jpeg);
    jpeg_mem_src(&jpeg, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
    jpeg_read_header(&jpeg, TRUE);
    jpeg_start_decompress(&jpeg);
    TBitmap picture{static_cast<int>(jpeg.output_width), static_cast<int>(jpeg.output_height), {}};
    picture.Pixels.resize(std::size_t{jpeg.output_width} * jpeg.output_height);
    while (jpeg.output_scanline < jpeg.output_height) {
        auto* row = reinterpret_cast<JSAMPLE*>(
            &picture.Pixels[std::size_t{jpeg.output_scanline} * jpeg.output_width]);
        jpeg_read_scanlines(&jpeg, &row, 1);
    }
    jpeg_destroy_decompress(&jpeg);
    return picture;
}

}  // namespace rux::test
