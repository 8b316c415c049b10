// Any bytes as a form file: what is read must be the same after writing and reading it again.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "platform/headless/forms/FormDump.h"
#include "platform/headless/forms/FormError.h"
#include "platform/headless/forms/FormParser.h"
#include "platform/headless/forms/FormWriter.h"
#include "tests/forms/FormCodePage.h"

namespace {

std::optional<rux::TFormFile> TryParse(std::string_view bytes) {
    try {
        return rux::ParseFormFile("fuzz.dfm", bytes);
    } catch (const rux::EFormFileError& error) {
        if (error.Message().find_first_of("\r\n") != std::string::npos) std::abort();
        return std::nullopt;
    }
}

[[noreturn]] void Report(std::string_view first, std::string_view written, std::string_view second) {
    for (std::string_view part : {first, written, second}) {
        std::fwrite(part.data(), 1, part.size(), stderr);
        std::fputs("\n----\n", stderr);
    }
    std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    rux::test::UseFormCodePage();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::optional<rux::TFormFile> file = TryParse({reinterpret_cast<const char*>(data), size});
    if (!file) return 0;
    std::string written = rux::WriteFormFile(*file);
    std::string dump = rux::DumpFormFile(*file);
    std::optional<rux::TFormFile> again = TryParse(written);
    if (!again) Report(dump, written, "refused");
    if (rux::DumpFormFile(*again) != dump) Report(dump, written, rux::DumpFormFile(*again));
    return 0;
}
