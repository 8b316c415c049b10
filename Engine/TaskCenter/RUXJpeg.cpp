#include "Engine/TaskCenter/RUXJpeg.h"

#include <csetjmp>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>

// Wants the standard files declared before it.
#include <jpeglib.h>

#include <jerror.h>

namespace rux {

namespace {

constexpr int Quality = 90;

/// Little-endian.
void Put(std::string& bytes, std::uint32_t value, int size) {
    for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFF);
}

/// All that one compression has. The library leaves it by a long jump when it fails, so nothing here has a
/// destructor. The library knows the parts only, and each of them is the first member of something here.
struct TJob {
    jpeg_compress_struct Jpeg;
    struct TErrors {
        jpeg_error_mgr Manager;
        std::jmp_buf Back;
        char Message[JMSG_LENGTH_MAX];
    } Errors;
    struct TOutput {
        jpeg_destination_mgr Manager;
        JOCTET* Bytes;
        std::size_t Size, Used;
    } Output;
};

constexpr std::size_t FirstOutput = std::size_t{1} << 16;

[[noreturn]] void Fail(j_common_ptr jpeg) {
    auto* errors = reinterpret_cast<TJob::TErrors*>(jpeg->err);
    errors->Manager.format_message(jpeg, errors->Message);
    std::longjmp(errors->Back, 1);
}

void Ignore(j_common_ptr, int) {}
void Ignore(j_common_ptr) {}

TJob::TOutput& OutputOf(j_compress_ptr jpeg) {
    return *reinterpret_cast<TJob::TOutput*>(jpeg->dest);
}

/// The first half of the room, or all of it, is full.
boolean Grow(j_compress_ptr jpeg) {
    TJob::TOutput& output = OutputOf(jpeg);
    const std::size_t size = output.Size ? output.Size * 2 : FirstOutput;
    void* bytes = std::realloc(output.Bytes, size);
    if (!bytes) ERREXIT1(jpeg, JERR_OUT_OF_MEMORY, 0);
    output.Bytes = static_cast<JOCTET*>(bytes);
    output.Manager.next_output_byte = output.Bytes + output.Size;
    output.Manager.free_in_buffer = size - output.Size;
    output.Size = size;
    return TRUE;
}

void Begin(j_compress_ptr jpeg) {
    Grow(jpeg);
}

void End(j_compress_ptr jpeg) {
    TJob::TOutput& output = OutputOf(jpeg);
    output.Used = output.Size - output.Manager.free_in_buffer;
}

/// False with a message in the job when the library gives up.
bool Compress(TJob& job, const TBitmap& picture) {
    job.Jpeg.err = jpeg_std_error(&job.Errors.Manager);
    job.Errors.Manager.error_exit = Fail;
    job.Errors.Manager.emit_message = Ignore;
    job.Errors.Manager.output_message = Ignore;
    if (setjmp(job.Errors.Back)) {
        jpeg_destroy_compress(&job.Jpeg);
        return false;
    }
    jpeg_create_compress(&job.Jpeg);
    job.Output.Manager.init_destination = Begin;
    job.Output.Manager.empty_output_buffer = Grow;
    job.Output.Manager.term_destination = End;
    job.Jpeg.dest = &job.Output.Manager;
    job.Jpeg.image_width = static_cast<JDIMENSION>(picture.Width);
    job.Jpeg.image_height = static_cast<JDIMENSION>(picture.Height);
    job.Jpeg.input_components = 3;
    job.Jpeg.in_color_space = JCS_RGB;
    jpeg_set_defaults(&job.Jpeg);
    jpeg_set_quality(&job.Jpeg, Quality, TRUE);
    jpeg_start_compress(&job.Jpeg, TRUE);
    static_assert(sizeof(TColor) == 3);
    while (job.Jpeg.next_scanline < job.Jpeg.image_height) {
        const TColor& first = picture.At(0, static_cast<int>(job.Jpeg.next_scanline));
        auto* row = reinterpret_cast<JSAMPLE*>(const_cast<TColor*>(&first));
        jpeg_write_scanlines(&job.Jpeg, &row, 1);
    }
    jpeg_finish_compress(&job.Jpeg);
    jpeg_destroy_compress(&job.Jpeg);
    return true;
}

}  // namespace

std::string BitmapFileBytes(const TBitmap& picture) {
    constexpr std::uint32_t headers = 14 + 40;
    const auto width = static_cast<std::size_t>(picture.Width),
               height = static_cast<std::size_t>(picture.Height);
    const std::size_t row = (width * 3 + 3) / 4 * 4;
    std::string bytes = "BM";
    bytes.reserve(headers + row * height);
    Put(bytes, static_cast<std::uint32_t>(headers + row * height), 4);
    Put(bytes, 0, 4);
    Put(bytes, headers, 4);
    Put(bytes, 40, 4);
    Put(bytes, static_cast<std::uint32_t>(width), 4);
    Put(bytes, static_cast<std::uint32_t>(height), 4);
    Put(bytes, 1, 2);   // planes
    Put(bytes, 24, 2);  // bits of a pixel
    // No compression; sizes and resolution are left to the reader.
    for (int i = 0; i < 6; ++i) Put(bytes, 0, 4);
    // From the bottom up.
    for (int y = picture.Height - 1; y >= 0; --y) {
        for (int x = 0; x < picture.Width; ++x) {
            const TColor& color = picture.At(x, y);
            for (const std::uint8_t part : {color.Blue, color.Green, color.Red})
                bytes += static_cast<char>(part);
        }
        bytes.append(row - width * 3, '\0');
    }
    return bytes;
}

std::string JpegFileBytes(const TBitmap& picture) {
    TJob job{};
    const bool done = Compress(job, picture);
    const std::unique_ptr<JOCTET, decltype(&std::free)> bytes(job.Output.Bytes, &std::free);
    if (!done) throw EInvalidGraphic(job.Errors.Message);
    return {reinterpret_cast<const char*>(bytes.get()), job.Output.Used};
}

}  // namespace rux
