#include "RegistryTestSupport.h"

namespace rux::test {

using EngineState = THostTest;

TEST_F(EngineState, OneEngineStandsAtATime) {
    for (int i = 0; i < 2; ++i) {
        EXPECT_FALSE(EngineStands());
        EXPECT_THROW(Engine(), EAssertionFailed);
        const TEngineState state(Desktop.Platform());
        EXPECT_THROW(TEngineState{Desktop.Platform()}, EAssertionFailed);
        EXPECT_EQ(&Engine(), &state);
        EXPECT_EQ(&Platform(), &Desktop.Platform());
    }
    EXPECT_FALSE(EngineStands());
}

}  // namespace rux::test
