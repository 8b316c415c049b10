#include <fstream>
#include <iterator>
#include <set>

#include "support/Jpeg.h"
#include "watch/Scene.h"

namespace rux::test {

std::string DescribeJpeg(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    if (!file) return "no file";
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    try {
        const TBitmap picture = DecodedJpeg(bytes);
        std::set<int> colours;
        // Of a window that draws nothing of itself there is a plain area, and behind it, to the right and
        // below, what was there before.
        for (int y = 0; y < picture.Height * 2 / 3; ++y)
            for (int x = 0; x < picture.Width * 7 / 8; ++x) {
                const TColor& c = picture.Pixels[static_cast<std::size_t>(y * picture.Width + x)];
                colours.insert(c.Red / 32 << 16 | c.Green / 32 << 8 | c.Blue / 32);
            }
        return std::to_string(picture.Width) + "x" + std::to_string(picture.Height) +
               (colours.size() > 1 ? " many" : " flat");
    } catch (const std::exception& error) {
        return error.what();
    }
}

}  // namespace rux::test
