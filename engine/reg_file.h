// A change set as a file in the registry editor's own format, so that it serves without this program too. What is no
// registry operation, and what the registry editor does not know of one, stands in comment lines that it skips.
#pragma once

#include <span>

#include "engine/change_set.h"
#include "platform/windows_info.h"

/// Why a file is refused.
enum class TRegFileFault : std::uint8_t {
    NoHeader,    ///< its first line is neither that of version 5 nor that of version 4
    BadKey,      ///< a key in brackets that is none, or below no known root
    NoKey,       ///< a value before the first key
    BadName,     ///< a value whose name does not end, or is not followed by "="
    BadData,     ///< data that is none of its type
    BadLine,     ///< a line that is none of these
    BadNote,     ///< a comment of this program that it does not understand
    Unreadable,  ///< the bytes are no text
};

struct TRegFileError {
    std::size_t Line = 0;  ///< from 1; of a value that goes on over several lines the first one
    TRegFileFault Fault = TRegFileFault::NoHeader;

    bool operator==(const TRegFileError&) const = default;
};

/// All operations of the file in its order, or why it is refused as a whole.
///
/// Read are version 5 and version 4 ("REGEDIT4"), in UTF-16 or UTF-8 with a byte-order mark, and without one in the 8-bit
/// code page of Windows, as registry editors take them. What they accept comes to what they make of it: a section creates
/// its key, the values of a deleted key are nothing, text in bytes gets its end, and in a file of 8 bits its bytes are
/// text of 8 bits. What they pass over in silence though it was meant to be a change, is refused.
[[nodiscard]] std::variant<TChangeSet, TRegFileError> ReadRegFile(std::span<const std::uint8_t> bytes,
                                                                  const TWindowsInfo& windows);

/// A file of version 5 in UTF-16 with a byte-order mark. Reading it gives the same set again, to the byte, but for this:
/// - operations that are not carried out are left out, and those that nothing could carry out: of a name with NUL, a start
///   type or a block that there is none of, an effect or a Left of another kind than the target;
/// - one that creates a key and writes nothing has the key as its target, and names in a key have one backslash between.
[[nodiscard]] TBytes WriteRegFile(const TChangeSet& changes);
