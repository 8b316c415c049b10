// What the reader of definition files takes, and what it refuses where.
#include "Engine/Core/RUXLimits.h"
#include "Engine/Registry/RUXXmlReader.h"
#include "RegistryTestSupport.h"
#include "rtl/CodePage.h"

namespace rux::test {

namespace {

/// "1 a x=1 y=2; 2 b": the elements in UTF-8, or the error.
std::string Dump(std::string_view bytes) {
    std::string text;
    try {
        ReadXml("f", bytes, [&](const TXmlElement& element) {
            text +=
                (text.empty() ? "" : "; ") + std::to_string(element.Depth) + " " + AnsiToUtf8(element.Name);
            for (const auto& [name, value] : element.Attributes)
                text += " " + AnsiToUtf8(name) + "=" + AnsiToUtf8(value);
        });
    } catch (const EXMLError& error) {
        return "! " + AnsiToUtf8(error.Message());
    }
    return text;
}

std::string Utf16(std::string_view utf8, bool bigEndian) {
    std::string bytes = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char16_t c : Utf8Decode(utf8)) {
        const char high = static_cast<char>(c >> 8), low = static_cast<char>(c);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

using XmlReader = THostTest;

}  // namespace

TEST_F(XmlReader, Elements) {
    const std::pair<std::string, const char*> rows[] = {
        {"", ""},
        {"<?xml version='1.0'?>\n<!-- none -->", ""},
        {"<a><b/><c ><d/></c\n></a>", "1 a; 2 b; 2 c; 3 d"},
        {"<a x = '1'\n\ty=\"a'\r\nb\"/> <?pi x?> <!-- <b/> -->", "1 a x=1 y=a' b"},
        {"<a x='&lt;&gt;&amp;&quot;&apos;&#65;&#x4e2D;&#x1F600;'>&#65;t</a>", "1 a x=<>&\"'A中??"},
        {"<a><![CDATA[<b>]] &x; ]]><名 值='中'/></a>", "1 a; 2 名 值=中"},
        {"<!DOCTYPE a [<!ENTITY e \">]\"><!-- ' --><?p ' ?><!ELEMENT a ANY>] >\n<a/>", "1 a"},
        {"\xEF\xBB\xBF<?xml version='1.0' encoding='GBK'?><a x='\xE4\xB8\xAD'/>", "1 a x=中"},
        {"<?xml version='1.0' encoding='gb2312'?><a x='\xD6\xD0'/>", "1 a x=中"},
        {"<?xml version='1.0' encoding=\"Windows-936\"?><a x='\xD6\xD0'/>", "1 a x=中"},
        {Utf16("<?xml version='1.0' encoding='UTF-16'?><a x='中'/>", false), "1 a x=中"},
        {Utf16("<a x='中'/>", true), "1 a x=中"},
        // Refused, each with its place.
        {"x<a/>", "! f:1:1: a text outside of the document element"},
        {"<a/><b/>", "! f:1:5: a second document element"},
        {"<a>\r\n<b></a>", "! f:2:4: no such element is open"},
        {"<a>\n\r<名>", "! f:3:4: element 名 does not end"},
        {"</a>", "! f:1:1: no such element is open"},
        {"<a x=1/>", "! f:1:6: a value in quotes is expected"},
        {"<a x/>", "! f:1:5: = is expected"},
        {"<a x='1'y='2'/>", "! f:1:9: a blank is expected"},
        {"<a x='1' y='' x='2'/>", "! f:1:20: an attribute is repeated"},
        {"<a x='<'/>", "! f:1:7: < may not stand in a value"},
        {"<a x='\n1", "! f:1:6: the value does not end"},
        {"<a x='&nbsp;'/>", "! f:1:8: this entity is not known"},
        {"<a>&lt</a>", "! f:1:7: ; is expected"},
        {"<a>&#xD800;</a>", "! f:1:7: no such character"},
        {"<a>&#99999999999;</a>", "! f:1:6: no such character"},
        {"<a>&#;</a>", "! f:1:6: a number is expected"},
        {"<a>]]></a>", "! f:1:4: ]]> may not stand in a text"},
        {"<a><!-- -- --></a>", "! f:1:11: -- may not stand in a comment"},
        {"<a><!-- ", "! f:1:8: the comment does not end"},
        {"<a/><?xml version='1.0'?>", "! f:1:5: a declaration stands at the very beginning"},
        {"<a/><!DOCTYPE a>", "! f:1:14: a document type stands before the document element"},
        {"<!DOCTYPE a [", "! f:1:10: the document type does not end"},
        {"<1/>", "! f:1:2: a name is expected"},
        {"<a\x01/>", "! f:1:3: a blank is expected"},
        {"<a>\x01</a>", "! f:1:4: this character may not stand here"},
        {"<a>中\x80</a>", "! f:1:5: no UTF-8"},
        {"<a x='\xF8\x88\x80\x80\x80'/>", "! f:1:7: no UTF-8"},
        {"<a>\xED\xA0\x80</a>", "! f:1:4: this character may not stand here"},
        {"<a>\xC0\xAF</a>", "! f:1:4: no UTF-8"},
        {"\xFF\xFE<" + std::string(2, '\0'), "! f:1:2: half a character"},
        {"<?xml version='1.0' encoding='koi8-r'?><a/>", "! f:1:1: encoding koi8-r is not known"},
        {std::string(XmlByteLimit + 1, ' '), "! f:1:1: more than 16777216 bytes"},
    };
    for (const auto& [bytes, expected] : rows) EXPECT_EQ(Dump(bytes), expected) << bytes.substr(0, 99);
}

TEST_F(XmlReader, NestsToItsBoundAndTakesTimeByLength) {
    std::string deep;
    for (std::size_t i = 0; i < XmlDepthLimit; ++i) deep += "<a>";
    EXPECT_EQ(Dump(deep + "<a/>"), "! f:1:769: elements are nested too deeply");
    // One line of many elements, and one element of many attributes.
    std::string wide = "<a>";
    for (int i = 0; i < 200000; ++i) wide += "<b/>";
    wide += "<c";
    for (int i = 0; i < 200000; ++i) wide += " x" + std::to_string(i) + "=''";
    std::size_t seen = 0, attributes = 0;
    ReadXml("f", wide + "/></a>", [&](const TXmlElement& element) {
        ++seen;
        attributes += element.Attributes.size();
    });
    EXPECT_EQ(seen, 200002u);
    EXPECT_EQ(attributes, 200000u);
}

}  // namespace rux::test
