#include "settings/scratch_system.h"

TMessageAnswer TScratchDialogs::Message(const TForm& /*asker*/, const std::wstring& /*text*/,
                                        TMessageButtons buttons, TMessageIcon /*icon*/) {
    AskedQuestion = true;
    return buttons == TMessageButtons::Ok ? TMessageAnswer::Ok : TMessageAnswer::No;
}

std::optional<std::wstring> TScratchDialogs::OpenFile(const TForm& /*asker*/,
                                                      const std::wstring& /*filter*/) {
    AskedFile = true;
    return File;
}

std::optional<TColor> TScratchDialogs::PickColor(const TForm& /*asker*/, TColor initial) {
    AskedColor = initial;
    return Color;
}
