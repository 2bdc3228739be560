# Functions to run Windows programs under Wine, below a display of their own; sourced after lib.sh.

export WINEDEBUG=${WINEDEBUG:--all}
# Neither of Wine's offers to download Mono or Gecko shall wait for a click.
export WINEDLLOVERRIDES="mscoree,mshtml="

# Starts Xvfb on a free display, sets DISPLAY and XvfbId.
StartXvfb() {
    local pipe
    pipe=$(mktemp -u)
    mkfifo "$pipe"
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$pipe" >/dev/null 2>&1 &
    XvfbId=$!
    # Read-write, so that an Xvfb that dies at once does not leave the read waiting for a writer.
    local number
    read -r -t 30 number <>"$pipe" || number=
    rm -f "$pipe"
    [ -n "$number" ] || Die "Xvfb does not start"
    export DISPLAY=":$number"
}

# Makes a 64-bit Wine prefix in the folder $1 and chooses it.
MakePrefix() {
    export WINEPREFIX=$1 WINEARCH=win64
    timeout 300 wine wineboot --init >/dev/null 2>&1 || Die "Wine cannot make a prefix"
    # A crash writes its backtrace to the log, instead of a window that waits for a click.
    timeout 60 wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f >/dev/null 2>&1
    timeout 60 wineserver -w
}

# Ends every program of the chosen prefix.
EndPrefix() { timeout 60 wineserver -k 2>/dev/null || true; timeout 60 wineserver -w 2>/dev/null || true; }

# The Windows spelling of the absolute path $1.
WindowsPath() { local path="Z:$1"; printf '%s\n' "${path//\//\\}"; }
