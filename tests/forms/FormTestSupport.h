// What the tests of form files share.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "platform/headless/forms/FormDump.h"
#include "platform/headless/forms/FormError.h"
#include "platform/headless/forms/FormParser.h"
#include "platform/headless/forms/FormWriter.h"
#include "tests/forms/FormCodePage.h"

namespace rux::test {

class FormTest : public ::testing::Test {
 protected:
    static void SetUpTestSuite() { UseFormCodePage(); }
};

/// The dump of `text`, or the message of its error.
inline std::string DumpOf(std::string_view text) {
    try {
        return DumpFormFile(ParseFormFile("f.dfm", text));
    } catch (const EFormFileError& error) {
        return error.Message();
    }
}

/// The dump after writing and reading once more.
inline std::string DumpOfWritten(std::string_view text) {
    return DumpOf(WriteFormFile(ParseFormFile("f.dfm", text)));
}

inline std::string Repeat(int count, std::string_view text) {
    std::string result;
    for (int i = 0; i < count; ++i) result += text;
    return result;
}

}  // namespace rux::test
