
#include "tests/contract/subject.h"

namespace {

constexpr std::uint32_t kGetBeep = 1;
constexpr std::uint32_t kSetBeep = 2;
constexpr std::uint32_t kGetMouse = 3;
constexpr std::uint32_t kSetMouse = 4;
constexpr std::uint32_t kGetSmoothingType = 0x200A;
constexpr std::uint32_t kSetSmoothingType = 0x200B;
constexpr std::uint32_t kNoAction = 0x7FFF;

using TBlock = std::vector<std::uint8_t>;

class TParametersContract : public TContractTest {
  protected:
    TSystemParameters& Parameters() { return System().Parameters; }

    TBlock Get(std::uint32_t action, std::size_t size) {
        TBlock block(size);
        EXPECT_TRUE(Parameters().Get(action, 0, block));
        return block;
    }
};

/// The three ways in which Windows is told a value.
TEST_F(TParametersContract, WhatIsSetIsAnswered) {
    // In the number beside the pointer.
    const TBlock beep = Get(kGetBeep, 4);
    for (const std::uint8_t state : {1, 0, 1}) {
        EXPECT_TRUE(Parameters().Set(kSetBeep, state, std::uint32_t{0}, 0));
        EXPECT_EQ(Get(kGetBeep, 4), (TBlock{state, 0, 0, 0}));
    }
    EXPECT_TRUE(Parameters().Set(kSetBeep, beep[0], std::uint32_t{0}, 0));

    // In a block that the pointer points to.
    const TBlock mouse = Get(kGetMouse, 12);
    for (const TBlock& block :
         {TBlock{3, 0, 0, 0, 9, 0, 0, 0, 1, 0, 0, 0}, TBlock{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}}) {
        EXPECT_TRUE(Parameters().Set(kSetMouse, 0, block, 0));
        EXPECT_EQ(Get(kGetMouse, 12), block);
    }
    EXPECT_TRUE(Parameters().Set(kSetMouse, 0, mouse, 0));

    // In the pointer itself.
    const TBlock smoothing = Get(kGetSmoothingType, 4);
    for (const std::uint32_t type : {1U, 2U}) {
        EXPECT_TRUE(Parameters().Set(kSetSmoothingType, 0, type, 0));
        EXPECT_EQ(Get(kGetSmoothingType, 4), (TBlock{static_cast<std::uint8_t>(type), 0, 0, 0}));
    }
    EXPECT_TRUE(Parameters().Set(kSetSmoothingType, 0, std::uint32_t{smoothing[0]}, 0));
}

TEST_F(TParametersContract, UnknownActionsFailAndTouchNothing) {
    TBlock block{1, 2, 3, 4};
    EXPECT_FALSE(Parameters().Get(kNoAction, 0, block));
    EXPECT_EQ(block, (TBlock{1, 2, 3, 4}));
    EXPECT_FALSE(Parameters().Set(kNoAction, 0, block, 0));
    EXPECT_FALSE(Parameters().Set(kNoAction, 0, std::uint32_t{1}, 0));
}

}  // namespace
