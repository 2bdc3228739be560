#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

#include "tests/settings/page_script.h"

namespace {

class TPageScripts : public testing::TestWithParam<std::string> {};

std::vector<std::string> Scripts() {
    std::vector<std::string> names;
    for (const auto& file : std::filesystem::directory_iterator(QUILLTUNE_SOURCE_DIR "/tests/settings/pages"))
        names.push_back(file.path().stem().string());
    std::ranges::sort(names);
    return names;
}

TEST_P(TPageScripts, DoesWhatItsScriptSays) {
    RunPageScript(QUILLTUNE_SOURCE_DIR "/tests/settings/pages/" + GetParam() + ".txt");
}

INSTANTIATE_TEST_SUITE_P(Pages, TPageScripts, testing::ValuesIn(Scripts()),
                         [](const auto& script) { return script.param; });

}  // namespace
