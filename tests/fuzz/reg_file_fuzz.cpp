// Registry files, whoever wrote them: what is read and written again is read as the same, nothing comes from nowhere, and an
// error is in the file.
#include <algorithm>

#include "engine/reg_file.h"
#include "tests/fakes/fake_windows_info.h"
#include "tests/fuzz/fuzz.h"

void FuzzRegFile(const std::uint8_t* data, std::size_t size) {
    const TFakeWindowsInfo windows;
    const auto read = ReadRegFile({data, size}, windows);
    if (const auto* error = std::get_if<TRegFileError>(&read)) {
        const auto ends = std::count(data, data + size, '\n') + std::count(data, data + size, '\r');
        Require(error->Line >= 1 && error->Line <= static_cast<std::size_t>(ends) + 1,
                "the line is in the file");
        return;
    }
    const auto& set = std::get<TChangeSet>(read);
    // The shortest are "[HKU]" and "@=-".
    Require(set.size() <= size / 3, "every operation has its text");
    const TBytes written = WriteRegFile(set);
    const auto again = ReadRegFile(written, windows);
    Require(std::holds_alternative<TChangeSet>(again) && std::get<TChangeSet>(again) == set,
            "what was read is written so that it reads the same");
    Require(WriteRegFile(std::get<TChangeSet>(again)) == written, "it is written the same again");
}
