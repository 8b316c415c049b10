#include "host/call/Script.h"

#include <cctype>
#include <stdexcept>

namespace rux {

namespace {

constexpr std::string_view Arrow = " => ";

std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && static_cast<unsigned char>(text.front()) <= ' ') text.remove_prefix(1);
    while (!text.empty() && static_cast<unsigned char>(text.back()) <= ' ') text.remove_suffix(1);
    return text;
}

std::string Unescape(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            result += text[i];
            continue;
        }
        switch (text[++i]) {
            case 'r':
                result += '\r';
                break;
            case 'n':
                result += '\n';
                break;
            case 't':
                result += '\t';
                break;
            default:
                result += text[i];
        }
    }
    return result;
}

void ReadExpectation(const std::string& name, std::string_view text, TScriptStep& step) {
    text = Trimmed(text);
    int status = 0;
    std::size_t at = 0;
    for (; at < text.size() && at < 9 && std::isdigit(static_cast<unsigned char>(text[at])); ++at)
        status = status * 10 + (text[at] - '0');
    if (at == 0 || (at < text.size() && text[at] != ' '))
        throw std::runtime_error(
            name + ":" + std::to_string(step.Line) + ": found \"" + std::string(text) +
            "\" behind the last \" => \", expected a status number, and a text behind it if "
            "the text counts");
    step.Status = status;
    if (at < text.size()) step.Text = Unescape(text.substr(at + 1));
}

}  // namespace

std::string EscapeText(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == '\r')
            result += "\\r";
        else if (c == '\n')
            result += "\\n";
        else if (c == '\t')
            result += "\\t";
        else if (c == '\\')
            result += "\\\\";
        else
            result += c;
    }
    return result;
}

std::vector<TScriptStep> ReadScript(const std::string& name, std::string_view text) {
    std::vector<TScriptStep> steps;
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = text.find('\n');
        const std::string_view line = Trimmed(text.substr(0, end));
        text.remove_prefix(end == text.npos ? text.size() : end + 1);
        if (line.empty() || line.front() == '#') continue;
        TScriptStep step;
        step.Line = number;
        const std::size_t arrow = line.rfind(Arrow);
        step.Request = Trimmed(line.substr(0, arrow));
        if (arrow != line.npos) ReadExpectation(name, line.substr(arrow + Arrow.size()), step);
        steps.push_back(std::move(step));
    }
    return steps;
}

}  // namespace rux
