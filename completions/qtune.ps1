# Completion of qtune's command lines in PowerShell 5 and later: dot-source this file from the profile. Settings come from
# qtune itself.

Register-ArgumentCompleter -Native -CommandName qtune, qtune.exe -ScriptBlock {
    param($wordToComplete, $commandAst, $cursorPosition)

    $words = @($commandAst.CommandElements | Select-Object -Skip 1 | ForEach-Object { "$_" })
    $command = $words | Where-Object { $_ -notlike '-*' -and $_ -ne $wordToComplete } | Select-Object -First 1
    $ids = { & qtune list | ForEach-Object { ($_ -split "`t")[0] } }

    if ($wordToComplete -like '-*') {
        $candidates = '--json', '--language', '--dry-run', '--force', '--help'
    } elseif (-not $command) {
        $candidates = 'list', 'find', 'show', 'get', 'set', 'preview', 'apply', 'export', 'history', 'undo'
    } elseif ($command -eq 'set' -and $wordToComplete -match '^([^=]+)=') {
        $id = $Matches[1]
        # An item of a list is its number; its caption follows in brackets.
        $candidates = & qtune show $id 2>$null | Where-Object { $_ -like "states`t*" } |
            ForEach-Object { "$id=" + (($_ -split "`t")[1] -split ' ')[0] }
    } elseif ($command -eq 'set') {
        $candidates = & $ids | ForEach-Object { "$_=" }
    } elseif ($command -in 'show', 'get', 'export') {
        $candidates = & $ids
    }
    $candidates | Where-Object { $_ -like "$wordToComplete*" } |
        ForEach-Object { [System.Management.Automation.CompletionResult]::new($_) }
}
