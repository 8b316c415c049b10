#include <fstream>
#include <iterator>
#include <set>

#include "support/Jpeg.h"
#include "watch/ModalScene.h"

namespace rux::test {

std::string DescribeJpeg(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    if (!file) return "no file";
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    try {
        const TBitmap picture = DecodedJpeg(bytes);
        std::set<int> colours;
        for (const TColor& c : picture.Pixels)
            colours.insert(c.Red / 32 << 16 | c.Green / 32 << 8 | c.Blue / 32);
        return std::to_string(picture.Width) + "x" + std::to_string(picture.Height) +
               (colours.size() > 1 ? " many" : " flat");
    } catch (const std::exception& error) {
        return error.what();
    }
}

}  // namespace rux::test
