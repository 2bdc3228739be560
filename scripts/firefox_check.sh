#!/usr/bin/env bash
# Does a real Firefox have what the program writes for it? Sets every preference of the page's sheets for current versions
# through the window, in several states, and asks a headless Firefox that starts with the profile for value and type. The
# home page is the text among them. One line for each preference, and a total; fails when any is not as it was set.
#   scripts/firefox_check.sh
set -euo pipefail
. "$(dirname "$0")/lib.sh"
. "$(dirname "$0")/wine.sh"

RequirePackages "${BuildPackages[@]}" "${WinePackages[@]}" firefox-esr
BuildPreset win64 --target Quilltune drive

Program="$Root/build/win64/Quilltune.exe"
Drive="$Root/build/win64/tools/drive.exe"

# Sheet | control | preference | type | what it is brought into and what that is for Firefox, a word for each round. Studies can be
# chosen only while data are sent, and so come first.
Current=TabSheet_Firefox_Current
Window=TabSheet_Firefox_CurrentWindow
General=TabSheet_Firefox_Common
Boxes='on=true off=false on=true off=false'
Inverse='on=false off=true on=false off=true'
Settings="
$Current|CB_Firefox_Current_Start|browser.startup.page|integer|2=3 0=0 1=1 2=3
$Current|Checkbox_Firefox_Current_Shortcuts|browser.newtabpage.activity-stream.showSponsoredTopSites|boolean|$Boxes
$Current|Checkbox_Firefox_Current_SponsoredStories|browser.newtabpage.activity-stream.showSponsored|boolean|$Boxes
$Current|Checkbox_Firefox_Current_Stories|browser.newtabpage.activity-stream.feeds.section.topstories|boolean|$Boxes
$Current|Checkbox_Firefox_Current_Studies|app.shield.optoutstudies.enabled|boolean|off=false on=true on=true off=false
$Current|Checkbox_Firefox_Current_Data|datareporting.healthreport.uploadEnabled|boolean|$Boxes
$Current|Checkbox_Firefox_Current_HttpsOnly|dom.security.https_only_mode|boolean|$Boxes
$Current|CB_Firefox_Current_Resolver|network.trr.mode|integer|1=2 2=3 3=5 0=0
$Current|Checkbox_Firefox_Current_PrivacyControl|privacy.globalprivacycontrol.enabled|boolean|$Boxes
$Current|Checkbox_Firefox_Current_Trackers|privacy.trackingprotection.enabled|boolean|$Boxes
$Window|Checkbox_Firefox_CurrentWindow_Beside|browser.tabs.insertAfterCurrent|boolean|$Boxes
$Window|Checkbox_Firefox_CurrentWindow_Switch|browser.tabs.loadInBackground|boolean|$Inverse
$Window|Checkbox_Firefox_CurrentWindow_CloseWindow|browser.tabs.closeWindowWithLastTab|boolean|$Boxes
$Window|Checkbox_Firefox_CurrentWindow_Confirm|browser.tabs.warnOnClose|boolean|$Boxes
$Window|Checkbox_Firefox_CurrentWindow_Recent|browser.ctrlTab.sortByRecentlyUsed|boolean|$Boxes
$Window|Checkbox_Firefox_CurrentWindow_SearchSuggestions|browser.urlbar.suggest.searches|boolean|$Boxes
$Window|Checkbox_Firefox_CurrentWindow_Sponsors|browser.urlbar.suggest.quicksuggest.sponsored|boolean|$Boxes
$Window|Checkbox_Firefox_CurrentWindow_Compact|browser.uidensity|integer|on=1 off=0 on=1 off=0
$Window|Checkbox_Firefox_CurrentWindow_Chatbot|browser.ml.chat.enabled|boolean|$Boxes
$Window|Checkbox_Firefox_CurrentWindow_StyleSheets|toolkit.legacyUserProfileCustomizations.stylesheets|boolean|$Boxes
$General|Edit_Firefox_Common_Homepage_Address|browser.startup.homepage|text|about:blank=about:blank http://a.test/(b);c,d=http://a.test/(b);c,d about:home=about:home about:blank=about:blank
"
Rounds=4

Drive() { timeout 60 wine "$Drive" "$@" | tr -d '\r'; }

# Brings the control $1 into the state $2. What is in it from the beginning is clicked all the same, so that it is written.
Bring() {
    local is
    case $1 in
        CB_*) Drive choose "$1" "$2" ;;
        Edit_*) Drive type "$1" "$2" ;;
        *)
            is=$(Drive state "$1")
            if [ "$is" != "$([ "$2" = on ] && echo checked || echo clear)" ]; then
                Drive click "$1"
            elif [ "$Round" = 1 ]; then
                Drive click "$1"
                Drive click "$1"
            fi
            ;;
    esac
}

# What Firefox is to answer: its preferences $args as "name|type|value", each followed by a blank.
Script="
const get = {[Services.prefs.PREF_BOOL]: ['boolean', 'getBoolPref'],
             [Services.prefs.PREF_INT]: ['integer', 'getIntPref'],
             [Services.prefs.PREF_STRING]: ['text', 'getStringPref']};
return Array.from(arguments).map(name => {
    const [type, method] = get[Services.prefs.getPrefType(name)] ?? ['nothing', ''];
    return name + '|' + type + '|' + (method ? Services.prefs[method](name) : '') + ' ';
}).join('');"

# Takes a message off the connection: its length, ":" and JSON.
Receive() {
    local length
    read -r -t 60 -d : -u "$Connection" length || Die "Firefox does not answer"
    LC_ALL=C read -r -t 60 -N "$length" -u "$Connection" Answer || Die "Firefox does not answer in full"
}

# Sends the command $1 with the parameters $2.
Ask() {
    local message="[0,$((++Asked)),\"$1\",$2]"
    printf '%s:%s' ${#message} "$message" >&"$Connection"
    Receive
    [[ $Answer == "[1,$Asked,null,"* ]] || Die "Firefox refuses $1: $Answer"
}

# Starts Firefox and prints the preferences $@ as it has them, "name|type|value" in a line each.
AskFirefox() {
    local names port Connection Answer Asked=0 port="$Profile/MarionetteActivePort"
    names=$(printf '"%s",' "$@")
    rm -f "$port"
    HOME=$Work firefox-esr --headless --no-remote --profile "$Profile" --marionette --remote-allow-system-access \
        about:blank >"$Work/firefox.log" 2>&1 &
    FirefoxId=$!
    for ((i = 0; i < 300; i++)); do [ ! -s "$port" ] || break; sleep 0.2; done
    [ -s "$port" ] || Die "Firefox does not start: $(tail -n 3 "$Work/firefox.log")"
    exec {Connection}<>"/dev/tcp/127.0.0.1/$(<"$port")"
    Receive  # who it is
    Ask WebDriver:NewSession '{}'
    Ask Marionette:SetContext '{"value":"chrome"}'
    Ask WebDriver:ExecuteScript "{\"args\":[${names%,}],\"script\":\"${Script//$'\n'/}\"}"
    Answer=${Answer#*'{"value":"'}
    tr ' ' '\n' <<<"${Answer% \"\}*}"
    exec {Connection}>&-
    EndFirefox
}

EndFirefox() {
    [ -z "$FirefoxId" ] || { kill "$FirefoxId" && wait "$FirefoxId"; } 2>/dev/null || true
    FirefoxId=
}

FirefoxId=
Work=$(mktemp -d)
StartXvfb
trap 'EndFirefox; EndPrefix; kill "$XvfbId"; rm -rf "$Work"' EXIT
MakePrefix "$Work/prefix"
wine reg add 'HKCU\Software\Wine\AppDefaults\Quilltune.exe' /v Version /d win10 /f >/dev/null 2>&1
wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1  # there is no window manager
wine reg add 'HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Mozilla Firefox' /f >/dev/null 2>&1

# An installation that starts with another profile than the one that is marked. In it, Firefox is told to choose a port by
# itself, not to prepare its preferences for being driven, and not to mind being killed.
Firefox=$(find "$WINEPREFIX/drive_c/users" -path '*/AppData/Roaming' ! -path '*/Public/*')/Mozilla/Firefox
Profile="$Firefox/Profiles/used"
mkdir -p "$Profile"
printf '%s\n' '[Install4F96D1932A9F858E]' Default=Profiles/used Locked=1 '[Profile0]' Path=Profiles/other IsRelative=1 \
    Default=1 '[Profile1]' Path=Profiles/used IsRelative=1 >"$Firefox/profiles.ini"
printf 'user_pref("%s", %s);\n' marionette.port 0 remote.prefs.recommended false \
    toolkit.startup.max_resumed_crashes -1 >"$Profile/prefs.js"

wine "$Program" >/dev/null 2>&1 &
Drive wait-ready
Drive click 'RzGroup_Use.Items[1]'

declare -A Seen
Wrong=0
mapfile -t Rows < <(sed '/^$/d' <<<"$Settings")
for ((Round = 1; Round <= Rounds; Round++)); do
    Say "Round $Round of $Rounds"
    Shown='' Expected=() Names=()
    for Row in "${Rows[@]}"; do
        IFS='|' read -r Sheet Control Name Type States <<<"$Row"
        [ "$Sheet" = "$Shown" ] || Drive sheet "$Sheet"
        Shown=$Sheet
        State=$(cut -d' ' -f"$Round" <<<"$States")
        Bring "$Control" "${State%%=*}"
        Names+=("$Name")
        Expected+=("$Name|$Type|${State#*=}")
    done
    Drive click Button_Apply
    Drive key Enter  # Firefox must be restarted
    AskFirefox "${Names[@]}" >"$Work/found"
    mapfile -t Found <"$Work/found"
    for i in "${!Names[@]}"; do
        Seen[${Names[i]}]+=" ${Found[i]##*|}"
        [ "${Found[i]}" = "${Expected[i]}" ] && continue
        Say "wrong: Firefox has ${Found[i]} and not ${Expected[i]}"
        Seen[${Names[i]}]+="(!)"
        Wrong=$((Wrong + 1))
    done
done
Unchecked=$(Drive list | grep -oE '^(Checkbox|CB)_Firefox_Current\w*' | grep -vxFf <(cut -d'|' -f2 <<<"$Settings") || true)
Drive close

for Row in "${Rows[@]}"; do
    IFS='|' read -r Sheet Control Name Type States <<<"$Row"
    printf '%-68s %-8s%s\n' "$Name" "$Type" "${Seen[$Name]}"
done
echo "${#Rows[@]} preferences in $Rounds states each, $Wrong wrong, as $(firefox-esr --version) has them"
[ -z "$Unchecked" ] || Die "these are not asked for: $Unchecked"
[ "$Wrong" = 0 ]
