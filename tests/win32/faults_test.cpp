// Faults while the windows of a form are created.
#include <cstdlib>
#include <new>

#include "tests/win32/peer_bench.h"
#include "ui/containers.h"

namespace {

int AllocationsToFailure = 0;  // 0 = none will fail

}  // namespace

// GCC takes them for a mismatched pair where it sees into them.
[[gnu::noinline]] void* operator new(std::size_t size) {
    if (AllocationsToFailure > 0 && --AllocationsToFailure == 0) throw std::bad_alloc();
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }

namespace {

TEST(TFaults, AFaultCostsNoMoreThanItsControl) {
    constexpr const wchar_t* kPage = L"1";
    bool hasFailed = true;
    for (int failing = 1; hasFailed; ++failing) {
        SCOPED_TRACE(failing);
        TForm form(L"Form", L"TFaultsForm");
        form.Build(form, Column(Button(L"First", L"First"), Notebook(L"Notebook", {NotebookPage(1)}),
                                Timer(L"Timer", 10), Button(L"Last", L"Last")));
        form.Find<TNotebook>(L"Notebook")->ShowPage(kPage);
        form.Build(*form.Find(kPage),
                   Column(CheckBox(L"Box", L"Box"), Edit(L"Edit"), ComboBox(L"List", {L"1"})));
        form.Find(L"Timer")->SetEnabled(true);
        int faults = 0;
        TFormWindow& window = TFormWindow::Attach(form, GetModuleHandleW(nullptr),
                                                  [&](const std::exception_ptr&) { ++faults; });
        AllocationsToFailure = failing;
        EXPECT_NO_THROW(window.Show(SW_HIDE));
        hasFailed = std::exchange(AllocationsToFailure, 0) == 0;
        EXPECT_EQ(faults, hasFailed ? 1 : 0);
        int missing = 0;
        for (const wchar_t* name : {L"First", L"Notebook", L"Timer", L"Last"})
            missing += form.Find(name)->Peer() == nullptr;
        EXPECT_LE(missing, 1);
    }
}

}  // namespace
