// What the settings of the Memory and Cache page are for.
#include "settings/explanation.h"

namespace {

constexpr TExplanation kTexts[] = {
    {"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Allways",
     "The code of Windows itself and of drivers is never moved to the disk. It helps developers of drivers; "
     "with plenty of memory there is little to gain, and with little memory programs lose some."},
    {"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Page",
     "Windows moves parts of itself that are not in use to the disk when programs need the memory. It is the "
     "default and right for nearly every computer."},
    {"Checkbox_MemoryAndCache_MemoryManage_Pagefile_Delete",
     "Overwrites the contents with zeros, so that nobody can read parts of documents or passwords in the "
     "page file while Windows is not running. Shutting down takes considerably longer; the file itself "
     "stays."},
    {"Button_MemoryAndCache_MemoryManage_Default",
     "Lets Windows move parts of itself to the page file, which is not cleared, as Windows does by default."},
    {"Radio_MemoryAndCache_MemoryUse_System",
     "Gives copies of files that were read more memory than programs. It is meant for file servers: on "
     "desktop computers with Windows XP, Microsoft warns, drivers may run short of memory and slow "
     "everything down."},
    {"Radio_MemoryAndCache_MemoryUse_Program",
     "Gives programs more memory than copies of files that were read. It is the default of all versions for "
     "desktop computers."},
    {"Button_MemoryAndCache_MemoryUse_Default",
     "Chooses programs, the default of Windows for desktop computers."},
};

}  // namespace

TExplanations MemoryExplanations() { return kTexts; }
