#include <cstdio>

#include <jpeglib.h>

#include <csetjmp>
#include <memory>
#include <set>

#include "watch/ModalScene.h"

namespace rux::test {

namespace {

struct TErrors {
    jpeg_error_mgr Manager;
    std::jmp_buf Back;
    char Text[JMSG_LENGTH_MAX];
};

void Fail(j_common_ptr decoder) {
    auto* errors = reinterpret_cast<TErrors*>(decoder->err);
    errors->Manager.format_message(decoder, errors->Text);
    std::longjmp(errors->Back, 1);
}

/// Pixels of a row of three bytes each, into the set of what was seen; more than a handful is many.
void Collect(const std::vector<unsigned char>& row, std::set<unsigned>& colours) {
    for (std::size_t i = 0; i + 2 < row.size() && colours.size() < 16; i += 3)
        colours.insert(row[i] / 32u << 16 | row[i + 1] / 32u << 8 | row[i + 2] / 32u);
}

}  // namespace

std::string DescribeJpeg(const std::string& name) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(name.c_str(), "rb"), &std::fclose);
    if (!file) return "no file";
    jpeg_decompress_struct decoder;
    TErrors errors;
    decoder.err = jpeg_std_error(&errors.Manager);
    errors.Manager.error_exit = Fail;
    std::set<unsigned> colours;
    std::vector<unsigned char> row;
    jpeg_create_decompress(&decoder);
    if (setjmp(errors.Back) != 0) {
        jpeg_destroy_decompress(&decoder);
        return errors.Text;
    }
    jpeg_stdio_src(&decoder, file.get());
    jpeg_read_header(&decoder, TRUE);
    decoder.out_color_space = JCS_RGB;
    jpeg_start_decompress(&decoder);
    row.resize(std::size_t{3} * decoder.output_width);
    while (decoder.output_scanline < decoder.output_height) {
        unsigned char* rows[] = {row.data()};
        jpeg_read_scanlines(&decoder, rows, 1);
        Collect(row, colours);
    }
    const std::string size =
        std::to_string(decoder.output_width) + "x" + std::to_string(decoder.output_height);
    jpeg_finish_decompress(&decoder);
    jpeg_destroy_decompress(&decoder);
    return size + (colours.size() > 1 ? " many" : " flat");
}

}  // namespace rux::test
