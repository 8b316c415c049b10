#include "Engine/Registry/RUXXmlReader.h"

#include <algorithm>

#include "Engine/Core/RUXLimits.h"
#include "Engine/Registry/RUXXmlText.h"
#include "rtl/CodePage.h"

namespace rux {

namespace {

bool IsSpace(char16_t c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool IsNameStart(char16_t c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || c == ':' || c >= 0xC0;
}

bool IsNameChar(char16_t c) {
    return IsNameStart(c) || (c >= '0' && c <= '9') || c == '-' || c == '.' || c == 0xB7;
}

bool IsTrail(char16_t c) {
    return (c & 0xFC00) == 0xDC00;
}

/// The value of an ASCII digit, `base` or more for what is none.
unsigned DigitOf(char16_t c) {
    if (c >= '0' && c <= '9') return c - u'0';
    if (c >= 'a' && c <= 'f') return c - u'a' + 10;
    return c >= 'A' && c <= 'F' ? c - u'A' + 10u : 16u;
}

class TXmlReader {
 public:
    TXmlReader(std::string_view name, const TXmlText& text)
        : FPlaces(name, text.Text), FFault(text.Fault), FText(text.Text) {}
    void Read(const std::function<void(const TXmlElement&)>& visit);

 private:
    [[noreturn]] void Fail(std::string_view what, std::size_t at);
    [[noreturn]] void Fail(std::string_view what) { Fail(what, FPos); }

    bool AtEnd() const { return FPos == FText.size(); }
    bool Sees(std::u16string_view text) const { return FText.substr(FPos).starts_with(text); }
    bool Take(std::u16string_view text);
    void Demand(std::u16string_view text, std::string_view what);
    void SkipSpace();
    char16_t Char();
    void SkipTo(std::u16string_view end, std::string_view what);
    std::u16string_view ReadName();
    void AppendEntity(std::u16string& value);
    char32_t CharReference();
    std::u16string ReadQuoted();
    void ReadAttributes(TXmlElement& element);
    void SkipText();
    void SkipComment();
    void SkipInstruction();
    void SkipDocType();
    void StartElement(const std::function<void(const TXmlElement&)>& visit);
    void EndElement();

    const TXmlPlaces FPlaces;
    const std::string FFault;
    const std::u16string_view FText;
    std::size_t FPos = 0;
    /// Names of the elements that are open.
    std::vector<std::u16string_view> FOpen;
    bool FHadRoot = false, FHadDocType = false;
};

void TXmlReader::Fail(std::string_view what, std::size_t at) {
    // What could not be decoded is what is wrong with a file that seems to end too early.
    if (at == FText.size() && !FFault.empty()) what = FFault;
    FPlaces.Fail(at, what);
}

// ------------------------------------------------------------------------------------------ characters

bool TXmlReader::Take(std::u16string_view text) {
    if (!Sees(text)) return false;
    FPos += text.size();
    return true;
}

void TXmlReader::Demand(std::u16string_view text, std::string_view what) {
    if (!Take(text)) Fail(what);
}

void TXmlReader::SkipSpace() {
    while (!AtEnd() && IsSpace(FText[FPos])) ++FPos;
}

/// One unit further, if it may stand in a file.
char16_t TXmlReader::Char() {
    if (AtEnd()) Fail("the file ends too early");
    const char16_t c = FText[FPos];
    const bool lead = (c & 0xFC00) == 0xD800, trail = IsTrail(c);
    const bool pair = lead    ? FPos + 1 < FText.size() && IsTrail(FText[FPos + 1])
                      : trail ? FPos > 0 && (FText[FPos - 1] & 0xFC00) == 0xD800
                              : IsXmlChar(c);
    if (!pair) Fail("this character may not stand here");
    ++FPos;
    return c;
}

void TXmlReader::SkipTo(std::u16string_view end, std::string_view what) {
    const std::size_t start = FPos;
    while (!Take(end)) {
        if (AtEnd()) Fail(what, FFault.empty() ? start : FPos);
        Char();
    }
}

std::u16string_view TXmlReader::ReadName() {
    const std::size_t start = FPos;
    if (AtEnd() || !IsNameStart(FText[FPos])) Fail("a name is expected");
    while (!AtEnd() && IsNameChar(FText[FPos])) Char();
    return FText.substr(start, FPos - start);
}

// ------------------------------------------------------------------------------------------ entities

/// Behind "&#".
char32_t TXmlReader::CharReference() {
    const unsigned base = Take(u"x") ? 16 : 10;
    const std::size_t start = FPos;
    char32_t value = 0;
    for (; !AtEnd() && DigitOf(FText[FPos]) < base; ++FPos)
        value = std::min<char32_t>(value * base + DigitOf(FText[FPos]), 0x110000);
    if (FPos == start) Fail("a number is expected");
    if (!IsXmlChar(value)) Fail("no such character", start);
    return value;
}

/// Behind the ampersand.
void TXmlReader::AppendEntity(std::u16string& value) {
    constexpr std::pair<std::u16string_view, char16_t> Known[] = {
        {u"lt", u'<'}, {u"gt", u'>'}, {u"amp", u'&'}, {u"quot", u'"'}, {u"apos", u'\''}};
    const std::size_t start = FPos;
    if (Take(u"#")) {
        AppendUtf16(value, CharReference());
    } else {
        const std::u16string_view name = ReadName();
        const auto* found = std::find_if(std::begin(Known), std::end(Known),
                                         [&](const auto& entity) { return entity.first == name; });
        if (found == std::end(Known)) Fail("this entity is not known", start);
        value += found->second;
    }
    Demand(u";", "; is expected");
}

std::u16string TXmlReader::ReadQuoted() {
    const std::size_t start = FPos;
    if (!Sees(u"\"") && !Sees(u"'")) Fail("a value in quotes is expected");
    const char16_t quote = Char();
    std::u16string value;
    while (!AtEnd()) {
        // A line end of two characters is one blank.
        if (Sees(u"\r\n")) ++FPos;
        const char16_t c = Char();
        if (c == quote) return value;
        if (c == '<') Fail("< may not stand in a value", FPos - 1);
        if (c == '&')
            AppendEntity(value);
        else
            value += IsSpace(c) ? u' ' : c;
    }
    Fail("the value does not end", FFault.empty() ? start : FPos);
}

// ------------------------------------------------------------------------------------------ elements

void TXmlReader::ReadAttributes(TXmlElement& element) {
    std::vector<std::u16string_view> names;
    while (true) {
        const std::size_t before = FPos;
        SkipSpace();
        if (AtEnd() || Sees(u">") || Sees(u"/")) break;
        if (FPos == before) Fail("a blank is expected");
        const std::u16string_view name = names.emplace_back(ReadName());
        SkipSpace();
        Demand(u"=", "= is expected");
        SkipSpace();
        element.Attributes.emplace_back(WideToAnsi(name), WideToAnsi(ReadQuoted()));
    }
    std::sort(names.begin(), names.end());
    if (std::adjacent_find(names.begin(), names.end()) != names.end()) Fail("an attribute is repeated");
}

void TXmlReader::StartElement(const std::function<void(const TXmlElement&)>& visit) {
    const std::size_t start = FPos - 1;
    const std::u16string_view name = ReadName();
    if (FOpen.empty() && FHadRoot) Fail("a second document element", start);
    if (FOpen.size() == XmlDepthLimit) Fail("elements are nested too deeply", start);
    FHadRoot = true;
    TXmlElement element{WideToAnsi(name), {}, FOpen.size() + 1, FPlaces, start};
    ReadAttributes(element);
    const bool empty = Take(u"/");
    Demand(u">", "> is expected");
    if (!empty) FOpen.push_back(name);
    visit(element);
}

void TXmlReader::EndElement() {
    const std::size_t start = FPos - 2;
    if (ReadName() != (FOpen.empty() ? std::u16string_view() : FOpen.back()))
        Fail("no such element is open", start);
    SkipSpace();
    Demand(u">", "> is expected");
    FOpen.pop_back();
}

// ------------------------------------------------------------------------------------------ the rest

void TXmlReader::SkipText() {
    std::u16string dropped;
    while (!AtEnd() && !Sees(u"<")) {
        if (Sees(u"]]>")) Fail("]]> may not stand in a text");
        const char16_t c = Char();
        if (FOpen.empty() && !IsSpace(c)) Fail("a text outside of the document element", FPos - 1);
        if (c == '&') AppendEntity(dropped);
        dropped.clear();
    }
}

void TXmlReader::SkipComment() {
    SkipTo(u"--", "the comment does not end");
    Demand(u">", "-- may not stand in a comment");
}

void TXmlReader::SkipInstruction() {
    const std::size_t start = FPos - 2;
    const std::string target = WideToAnsi(ReadName());
    if (target == "xml" && start != 0) Fail("a declaration stands at the very beginning", start);
    SkipTo(u"?>", "the instruction does not end");
}

/// Its inner declarations are passed over: none of them changes what is read.
void TXmlReader::SkipDocType() {
    if (FHadRoot || FHadDocType) Fail("a document type stands before the document element");
    FHadDocType = true;
    const std::size_t start = FPos;
    for (int depth = 0; !AtEnd();) {
        if (Take(u"<!--")) {
            SkipComment();
        } else if (Take(u"<?")) {
            SkipInstruction();
        } else {
            const char16_t c = Char();
            if (c == '>' && depth == 0) return;
            if (c == '"' || c == '\'') SkipTo(FText.substr(FPos - 1, 1), "the value does not end");
            if (c == '[' || c == '<') ++depth;
            if (c == ']' || c == '>') --depth;
        }
    }
    Fail("the document type does not end", FFault.empty() ? start : FPos);
}

void TXmlReader::Read(const std::function<void(const TXmlElement&)>& visit) {
    while (true) {
        SkipText();
        if (AtEnd()) break;
        if (Take(u"<!--"))
            SkipComment();
        else if (Take(u"<?"))
            SkipInstruction();
        else if (Take(u"</"))
            EndElement();
        else if (!FOpen.empty() && Take(u"<![CDATA["))
            SkipTo(u"]]>", "the CDATA section does not end");
        else if (Take(u"<!DOCTYPE"))
            SkipDocType();
        else {
            ++FPos;
            StartElement(visit);
        }
    }
    if (!FOpen.empty()) Fail("element " + WideToAnsi(FOpen.back()) + " does not end");
    if (!FFault.empty()) Fail(FFault);
}

}  // namespace

void TXmlPlaces::Fail(std::size_t at, std::string_view what) const {
    std::size_t line = 1, start = 0;
    for (std::size_t i = 0; i < at; ++i) {
        const bool pair = FText[i] == '\r' && i + 1 < FText.size() && FText[i + 1] == '\n';
        if ((FText[i] != '\n' && FText[i] != '\r') || pair) continue;
        ++line;
        start = i + 1;
    }
    const std::u16string_view before = FText.substr(start, at - start);
    const auto trails = static_cast<std::size_t>(std::count_if(before.begin(), before.end(), IsTrail));
    throw EXMLError(FName + ":" + std::to_string(line) + ":" + std::to_string(before.size() - trails + 1) +
                    ": " + std::string(what));
}

const std::string& TXmlElement::Required(std::string_view attribute) const {
    const auto found = std::find_if(Attributes.begin(), Attributes.end(),
                                    [&](const auto& row) { return row.first == attribute; });
    if (found == Attributes.end())
        Places.Fail(At, "element " + Name + " has no attribute " + std::string(attribute));
    return found->second;
}

void ReadXml(std::string_view name, std::string_view bytes,
             const std::function<void(const TXmlElement&)>& visit) {
    if (bytes.size() > XmlByteLimit)
        throw EXMLError(std::string(name) + ":1:1: more than " + std::to_string(XmlByteLimit) + " bytes");
    const TXmlText text = DecodeXml(bytes);
    TXmlReader(name, text).Read(visit);
}

}  // namespace rux
