// What the settings of the Drive page are for.
#include "settings/explanation.h"

namespace {

constexpr TExplanation kTexts[] = {
    {"Checkbox_Drives_Common_Enable",
     "Windows 2000 leaves this faster mode off on computers with certain Intel chipsets. The disk and its "
     "80-wire cable must be able to do it, or else there are errors. Windows XP and later choose the mode by "
     "themselves."},
    {"Checkbox_Drives_Common_NTFS_SaveLastVisitData",
     "Clearing it spares NTFS drives a write each time a file is read; backup and clean-up programs may need "
     "the date. Windows Vista and 7 do not record it by default. Takes effect when Windows is started "
     "again."},
    {"Checkbox_Drives_Common_NTFS_SaveShortName",
     "Old programs and some Setup programs need names such as PROGRA~1. Without them, folders with very many "
     "files become faster; names that exist already stay. Takes effect when Windows is started again."},
    {"Button_Drives_Common_Default",
     "Turns off Ultra DMA mode 66 and turns on access dates and short names."},
    {"Checkbox_Drives_DiskSpace_SpaceWarn_ShowWarn",
     "A balloon in the notification area appears when a drive has less than 200 MB left, and more urgent "
     "ones below 80 and 50 MB. Clear it if a drive that is meant to be full, such as one for recovery, "
     "triggers it again and again."},
    {"Button_Drives_DiskSpace_SpaceWarn_Default", "Turns the warning on, as Windows does by default."},
    {"Checkbox_Drives_AutoPlay_MonitorMediaChanges_Enable",
     "Windows is told when a disc is changed in a CD or DVD drive. Without this, discs never start by "
     "themselves, and Explorer may go on showing the old disc until you press F5. It applies to all users."},
    {"Checkbox_Drives_AutoPlay_AutoPlayInfo_RemovableMedia",
     "Clearing this keeps programs on a memory stick or the like from starting when it is connected, a way "
     "in which viruses spread. While nothing is stored, the first change turns AutoPlay off either way: "
     "apply it, then set the box again. Change only one of the two boxes at a time."},
    {"Checkbox_Drives_AutoPlay_AutoPlayInfo_DVD",
     "Clearing this keeps programs and films on inserted discs from starting by themselves. While nothing is "
     "stored, the first change turns AutoPlay off either way: apply it, then set the box again. Change only "
     "one of the two boxes at a time."},
};

}  // namespace

TExplanations DrivesExplanations() { return kTexts; }
