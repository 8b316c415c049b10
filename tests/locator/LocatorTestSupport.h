// Questions about finding, asked of an engine without a daemon.
#pragma once

#include "Engine/Locator/RUXTestLocatorParser.h"
#include "rtl/CodePage.h"
#include "support/EngineFixture.h"

namespace rux::test {

class TLocatorTest : public TEngineTest {
 protected:
    /// Names of what the locator (UTF-8) finds, each with a blank behind it, or the failure.
    std::string Locate(std::string_view locator, bool partMatch = true) {
        TSolviLocatorParser parser(&Kit().Application(), partMatch);
        try {
            std::string names;
            const TIntf<ICommonLocator> list = parser.Locate(Ansi(locator));
            for (int i = 0; i < list->GetCount(); ++i) names += NameOf(list->GetItem(i)->GetObject()) + " ";
            return names;
        } catch (const EAssertionFailed& error) {
            return std::string(error.ClassName());
        } catch (const Exception& error) {
            return std::string(error.ClassName()) + ": " + error.Message();
        }
    }
    static std::string NameOf(TObject* object) {
        return Is<TComponent>(object) ? Cast<TComponent>(object).Name() : object->ClassType().Name();
    }
};

}  // namespace rux::test
