#include "tests/contract/subject.h"

namespace {

constexpr std::uint32_t kNoAction = 0x7FFF;

using TParametersContract = TContractTest;

/// The three ways in which Windows is told a value: in the number beside the pointer, in a block that the pointer
/// points to, in the pointer itself.
TEST_F(TParametersContract, WhatIsSetIsAnswered) {
    TSystemParameters& parameters = System().Parameters;
    const auto expectAnswered = [&](std::uint32_t getAction, std::size_t size, auto set,
                                    const std::vector<TBytes>& blocks) {
        TBytes before(size);
        ASSERT_TRUE(parameters.Get(getAction, 0, before));
        for (const TBytes& block : blocks) {
            TBytes answer(size);
            EXPECT_TRUE(set(block));
            EXPECT_TRUE(parameters.Get(getAction, 0, answer));
            EXPECT_EQ(answer, block);
        }
        EXPECT_TRUE(set(before));
    };
    const auto setBeep = [&](const TBytes& block) { return parameters.Set(2, block[0], 0U, 0); };
    expectAnswered(1, 4, setBeep, {{1, 0, 0, 0}, {0, 0, 0, 0}});
    const auto setMouse = [&](const TBytes& block) { return parameters.Set(4, 0, block, 0); };
    expectAnswered(3, 12, setMouse, {{3, 0, 0, 0, 9, 0, 0, 0, 1, 0, 0, 0}, TBytes(12)});
    const auto setSmoothingType = [&](const TBytes& block) {
        return parameters.Set(0x200B, 0, std::uint32_t{block[0]}, 0);
    };
    expectAnswered(0x200A, 4, setSmoothingType, {{1, 0, 0, 0}, {2, 0, 0, 0}});
}

TEST_F(TParametersContract, UnknownActionsFailAndTouchNothing) {
    TBytes block{1, 2, 3, 4};
    EXPECT_FALSE(System().Parameters.Get(kNoAction, 0, block));
    EXPECT_EQ(block, (TBytes{1, 2, 3, 4}));
    EXPECT_FALSE(System().Parameters.Set(kNoAction, 0, block, 0));
    EXPECT_FALSE(System().Parameters.Set(kNoAction, 0, 1U, 0));
}

}  // namespace
