#!/usr/bin/env bash
# Installs, builds and opens the program under Wine on Debian 12, in a Wine prefix of its own (build/wine-prefix).
# With a display it simply runs. Without one it shows itself at work on a virtual display: it photographs every page into
# build/screenshots, makes one change through the window, prints the registry value before and after, and starts again to
# see the new state; it fails when the change was not seen. Three of the pictures are those of README.md: a setting
# explained, settings found, changes listed.
set -euo pipefail
. "$(dirname "$0")/lib.sh"
. "$(dirname "$0")/wine.sh"

RequirePackages "${BuildPackages[@]}" "${WinePackages[@]}" imagemagick fonts-dejavu-extra
"$Root/scripts/build.sh"

Program="$Root/dist/win64/Quilltune.exe"
Drive="$Root/build/win64/tools/drive.exe"
Screenshots="$Root/build/screenshots"
Prefix="$Root/build/wine-prefix"
Key='HKLM\System\CurrentControlSet\Control\FileSystem'
Value=NtfsDisableLastAccessUpdate
DriverItem='RzGroup_Communication.Items[3]'
Box=Checkbox_Drives_Common_NTFS_SaveLastVisitData

# File name of the picture, and the category item that shows the page.
Pages=(
    general          'RzGroup_CommonSettings.Items[0]'
    file_types       'RzGroup_Display.Items[0]'
    folder_types     'RzGroup_Display.Items[1]'
    start_menu       'RzGroup_Display.Items[2]'
    task_bar         'RzGroup_Display.Items[3]'
    internet         'RzGroup_Use.Items[0]'
    firefox          'RzGroup_Use.Items[1]'
    information      'RzGroup_Communication.Items[0]'
    input            'RzGroup_Communication.Items[1]'
    network          'RzGroup_Communication.Items[2]'
    driver           "$DriverItem"
    memory           'RzGroup_Communication.Items[4]'
    user_logon       'RzGroup_Manage.Items[0]'
    security_center  'RzGroup_Manage.Items[1]'
    privacy          'RzGroup_Manage.Items[2]'
    effects          'RzGroup_Others.Items[0]'
    maintenance      'RzGroup_Others.Items[1]'
)

Drive() { timeout 60 wine "$Drive" "$@" | tr -d '\r'; }

StartProgram() {
    wine "$Program" >/dev/null 2>&1 &
    Drive wait-ready
}

# Takes a picture, named $1, of the main window alone, or of the dialog with the class $2.
Photograph() {
    local x y width height
    sleep 0.5  # a window is painted when its program has nothing more urgent to do
    read -r x y width height <<<"$(Drive ${2:+--form "$2"} rect)"
    import -window root -crop "${width}x$height+$x+$y" +repage "$Screenshots/$1.png"
}

# The stored number, or "not set".
StoredValue() {
    local found
    found=$(wine reg query "$Key" /v $Value /reg:64 2>/dev/null | tr -d '\r' | awk -v value=$Value '$1 == value { print $3 }' || true)
    echo "${found:-not set}"
}

[ -d "$Prefix" ] || { mkdir -p "$Root/build" && MakePrefix "$Prefix"; }
export WINEPREFIX=$Prefix

# In a font that looks like Windows' own Tahoma.
for Name in 'MS Shell Dlg' 'MS Shell Dlg 2' Tahoma; do
    wine reg add 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\FontSubstitutes' /v "$Name" /d 'DejaVu Sans Condensed' /f
done >/dev/null 2>&1

if [ -n "${DISPLAY:-}" ]; then
    exec wine "$Program"
fi

BuildPreset win64 --target drive
StartXvfb
trap 'EndPrefix; kill "$XvfbId"' EXIT
# Nobody else draws the frames of windows here.
wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1
wineserver -w
rm -rf "$Screenshots"
mkdir -p "$Screenshots"

StartProgram
for ((i = 0; i < ${#Pages[@]}; i += 2)); do
    Drive click "${Pages[i + 1]}"
    Photograph "${Pages[i]}"
done

Before=$(StoredValue)
Drive click "$DriverItem"
StateBefore=$(Drive state $Box)
Drive click $Box
StateClicked=$(Drive state $Box)
Drive focus $Box
Photograph readme_page
Drive click Button_Changes
Photograph readme_changes TQuilltune_FormChanges
Drive --form TQuilltune_FormChanges click Button_Changes_Close
Drive type Edit_Find 'recent doc'
Photograph readme_find
Drive key Esc
Drive click Button_Apply
After=$(StoredValue)
Drive close
wineserver -w

StartProgram
Drive click "$DriverItem"
StateAgain=$(Drive state $Box)
Photograph driver_after_restart
Drive close

echo "$Key $Value"
echo "  before: $Before (box $StateBefore)"
echo "  after:  $After (box $StateClicked)"
echo "  started again: box $StateAgain"
echo "Pictures of $((${#Pages[@]} / 2)) pages: build/screenshots"
[ "$Before" != "$After" ] && [ "$StateBefore" != "$StateClicked" ] && [ "$StateAgain" = "$StateClicked" ] ||
    Die "the change was not seen"
