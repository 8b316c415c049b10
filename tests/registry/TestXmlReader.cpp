// What the reader of definition files takes, and what it refuses where.
#include <sstream>

#include "Engine/Core/RUXLimits.h"
#include "Engine/Registry/RUXXmlReader.h"
#include "RegistryTestSupport.h"
#include "rtl/CodePage.h"

namespace rux::test {

namespace {

using namespace std::string_literals;
using XmlReader = THostTest;

/// "1 a x=1 y=2, 2 b, ": the elements in UTF-8, or "1:7: what is wrong".
std::string DumpOne(const std::string& file) {
    std::string text;
    try {
        ReadXml("f", file, [&](const TXmlElement& element) {
            text += std::to_string(element.Depth) + " " + element.Name;
            for (const auto& [name, value] : element.Attributes) text += " " + name + "=" + value;
            text += ", ";
        });
    } catch (const EXMLError& error) {
        return AnsiToUtf8(error.Message()).substr(2);
    }
    return AnsiToUtf8(text);
}

/// The same for each of several files, with ~ between them.
std::string Dump(const std::string& files) {
    std::istringstream each(files);
    std::string text;
    for (std::string file; std::getline(each, file, '~');) text += (text.empty() ? "" : "; ") + DumpOne(file);
    return text;
}

}  // namespace

TEST_F(XmlReader, Elements) {
    std::string deep;
    for (std::size_t i = 0; i < XmlDepthLimit; ++i) deep += "<a>";
    const std::pair<std::string, const char*> rows[] = {
        {"<a><b/><c ><d/></c\n></a>~<a x = '1'\n\ty=\"a'\r\nb\"/> <?pi x?> <!-- <b/> -->",
         "1 a, 2 b, 2 c, 3 d, ; 1 a x=1 y=a' b, "},
        {"<a x='&lt;&gt;&amp;&quot;&apos;&#65;&#x4e2D;&#x1F600;'>&#65;t</a>", "1 a x=<>&\"'A中??, "},
        {"<!DOCTYPE a [<!ENTITY e \">]\"><!-- ' --><?p ' ?><!ELEMENT a ANY>] >\n"
         "<a><![CDATA[<b>]] &x; ]]><名 值='中'/></a>",
         "1 a, 2 名 值=中, "},
        // A mark counts more than the declaration.
        {"\xEF\xBB\xBF<?xml version='1.0' encoding='GBK'?><a x='\xE4\xB8\xAD'/>~"
         "<?xml version='1.0' encoding=\"Windows-936\"?><a x='\xD6\xD0'/>~<?xml encoding='koi8-r'?><a/>",
         "1 a x=中, ; 1 a x=中, ; 1:1: encoding koi8-r is not known"},
        {"\xFF\xFE<\0-N/\0>\0~\xFE\xFF\0<N-\0/\0>~\xFF\xFE<\0\0"s, "1 中, ; 1 中, ; 1:2: half a character"},
        {"<a>中\x80</a>~<a>\xC0\xAF</a>~<a x='\xF8\x88\x80\x80\x80'/>",
         "1:5: no UTF-8; 1:4: no UTF-8; 1:7: no UTF-8"},
        {"<a>\xED\xA0\x80</a>~<a>\x01</a>",
         "1:4: this character may not stand here; 1:4: this character may not stand here"},
        {"x<a/>~<a/><b/>", "1:1: a text outside of the document element; 1:5: a second document element"},
        {"<a>\r\n<b></a>~</a>", "2:4: no such element is open; 1:1: no such element is open"},
        {"<a>\n\r<名>~<1/>~<a x/>",
         "3:4: element 名 does not end; 1:2: a name is expected; 1:5: = is expected"},
        {"<a x=1/>~<a x='1'y=''/>~<a\x01/>",
         "1:6: a value in quotes is expected; 1:9: a blank is expected; 1:3: a blank is expected"},
        {"<a x='1' y='' x='2'/>~<a x='<'/>~<a x='\n1",
         "1:20: an attribute is repeated; 1:7: < may not stand in a value; 1:6: the value does not end"},
        {"<a x='&nbsp;'/>~<a>&lt</a>~<a>&#;</a>",
         "1:8: this entity is not known; 1:7: ; is expected; 1:6: a number is expected"},
        {"<a>&#xD800;</a>~<a>&#99999999999;</a>", "1:7: no such character; 1:6: no such character"},
        {"<a>]]></a>~<a><!-- -- -->",
         "1:4: ]]> may not stand in a text; 1:11: -- may not stand in a comment"},
        {"<a><!-- ~<!DOCTYPE a [", "1:8: the comment does not end; 1:10: the document type does not end"},
        {"<a/><?xml version='1.0'?>~<a/><!DOCTYPE a>",
         "1:5: a declaration stands at the very beginning; "
         "1:14: a document type stands before the document element"},
        {deep + "<a/>", "1:769: elements are nested too deeply"},
        {std::string(XmlByteLimit + 1, ' '), "1:1: more than 16777216 bytes"},
    };
    for (const auto& [files, expected] : rows) EXPECT_EQ(Dump(files), expected) << files.substr(0, 99);
}

TEST_F(XmlReader, TakesTimeByLength) {
    // One line of many elements, and one element of many attributes.
    std::string elements = "<a>", attributes;
    for (int i = 0; i < 200000; ++i) {
        elements += "<b/>";
        attributes += " x" + std::to_string(i) + "=''";
    }
    std::size_t seen = 0;
    const auto count = [&](const TXmlElement& element) { seen += 1 + element.Attributes.size(); };
    ReadXml("f", elements + "<c" + attributes + "/></a>", count);
    EXPECT_EQ(seen, 400002u);
}

}  // namespace rux::test
