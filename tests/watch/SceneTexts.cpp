#include "watch/Scene.h"

namespace rux::test {

namespace {

/// By bytes: these texts are in UTF-8.
std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = text.find(from); at != text.npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

}  // namespace

std::string TSceneTexts::PictureName() const {
    std::string name = "Box_" + Request + ".jpg";
    for (char& c : name)
        if (std::string_view("?/\\:*\"<>|").find(c) != std::string_view::npos) c = '_';
    return name;
}

std::string TSceneTexts::Short(std::string answer) const {
    const std::string described = Description + "\r\nPicFileName:/UnExpectWindowPic/" + PictureName();
    answer = Replaced(answer, "\r\n\r\n[" + Request + "]执行异常\r\n" + described, "+carried");
    answer = Replaced(answer, described, "window");
    answer = Replaced(answer, "\n", " ");
    return answer == "211 成功返回 False" ? "ok" : answer;
}

std::string TSceneTexts::Pictures(const std::filesystem::path& folder, const std::string& size) const {
    std::string all;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        const std::string name = entry.path().filename().string();
        all += ", " + (name == PictureName() ? DescribeJpeg(entry.path().string()) : name);
    }
    return Replaced(all, size + " many", "picture");
}

std::string TSceneTexts::Popped(const std::string& log) const {
    const std::string sign = " Pop:" + Request + "\r\n";
    const std::size_t end = log.find(sign);
    if (end == log.npos) return "stays";
    const std::size_t begin = log.rfind("StactCount:", end);
    return log.substr(begin, end - begin) + (log.find(sign, end + 1) == log.npos ? "" : " twice");
}

}  // namespace rux::test
