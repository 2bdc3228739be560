// One program for all targets, which have most of their code in common.
//   fuzz <target> [libFuzzer's options and folders of samples]
#include "tests/fuzz/fuzz.h"

#include <cstring>

namespace {

constexpr struct {
    const char* Name;
    void (*Target)(const std::uint8_t* data, std::size_t size);
} kTargets[] = {
    {"language_file", FuzzLanguageFile},
    {"prefs", FuzzPrefs},
    {"profiles", FuzzProfiles},
    {"reg_file", FuzzRegFile},
};

void (*Chosen)(const std::uint8_t* data, std::size_t size);

}  // namespace

/// libFuzzer calls it first, and then looks at the arguments that it leaves.
extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments) {
    for (const auto& [name, target] : kTargets)
        if (*count > 1 && std::strcmp((*arguments)[1], name) == 0) Chosen = target;
    if (Chosen == nullptr) {
        std::fprintf(stderr, "no such target\n");
        std::exit(2);
    }
    (*arguments)[1] = (*arguments)[0];
    ++*arguments;
    --*count;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Chosen(data, size);
    return 0;
}
