// A desktop that loads form texts, and reads by name what stands on them.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "platform/headless/HeadlessPlatform.h"
#include "platform/headless/forms/FormParser.h"
#include "platform/headless/loader/HFormLoader.h"
#include "platform/posix/CodePages.h"
#include "platform/posix/ManualClock.h"
#include "platform/posix/PosixPlatform.h"
#include "rtl/CodePage.h"
#include "rtl/Text.h"
#include "tests/support/PropertyText.h"

namespace rux::test {

class TCatalogueTest : public ::testing::Test {
 protected:
    static void SetUpTestSuite() { SetAnsiCodePage(LoadCodePage(936)); }

    std::vector<HComponent*> Load(std::string_view text, std::string fileName = "test.dfm") {
        Files.push_back(ParseFormFile(std::move(fileName), text));
        Loader = std::make_unique<HFormLoader>(Desktop.Toolkit(), Parents);
        return Loader->Load({Files.back()});
    }
    /// A form of the text's objects.
    HComponent& LoadForm(std::string_view objects) {
        return *Load("object F: TForm ClientWidth = 400 ClientHeight = 300 " + std::string(objects) + " end")
                    .front();
    }

    /// A dotted path of properties; `?` for one that there is none of, the class's name for an object.
    static std::string Read(HObject& object, std::string_view path) {
        const std::size_t dot = path.find('.');
        TPropValue value;
        if (!object.GetProp(FindName(path.substr(0, dot)), value)) return "?";
        if (dot == path.npos) return PropertyText(value);
        auto* part = dynamic_cast<HObject*>(value.Object);
        return part ? Read(*part, path.substr(dot + 1)) : "nil";
    }

    /// "Caption=x TabStop=True" for the paths that `wanted` has in that form.
    static std::string ReadAll(HObject& object, std::string_view wanted) {
        std::string all;
        while (!wanted.empty()) {
            const std::size_t end = std::min(wanted.find(' '), wanted.size());
            const std::string_view path = wanted.substr(0, wanted.find('='));
            all += (all.empty() ? "" : " ") + std::string(path) + "=" + Read(object, path);
            wanted.remove_prefix(std::min(end + 1, wanted.size()));
        }
        return all;
    }

    TManualClock Clock;
    TPosixKernel Kernel{Clock, {}};
    TPosixSockets Sockets{Clock, {}};
    TPosixFiles FileSystem;
    THeadlessPlatform Desktop{Kernel, Clock, Sockets, FileSystem};
    const HClassParents Parents{};
    std::vector<TFormFile> Files;
    std::unique_ptr<HFormLoader> Loader;
};

}  // namespace rux::test
