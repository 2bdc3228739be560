# Completion of qtune's command lines in bash: source this file. Settings and pages come from qtune itself.

_qtune() {
    local word=${COMP_WORDS[COMP_CWORD]} command='' i reply=()
    # Bash takes "ID=STATE" apart.
    local before=${COMP_WORDS[COMP_CWORD - 1]}
    for ((i = 1; i < COMP_CWORD; i++)); do
        if [[ ${COMP_WORDS[i]} != -* ]]; then
            command=${COMP_WORDS[i]}
            break
        fi
    done
    local ids='qtune list | cut -f 1'
    if [[ $word == -* ]]; then
        reply=(--json --language --dry-run --force --help)
    elif [[ $before == --language ]]; then
        return
    elif [[ -z $command ]]; then
        reply=(list find show get set preview apply export history undo)
    elif [[ $command == set && ($word == '=' || $before == '=') ]]; then
        local id=${COMP_WORDS[COMP_CWORD - 1]}
        [[ $before == '=' ]] && id=${COMP_WORDS[COMP_CWORD - 2]}
        [[ $word == '=' ]] && word=''
        # An item of a list is its number; its caption follows in brackets.
        mapfile -t reply < <(qtune show "$id" 2>/dev/null | tr -d '\r' | sed -n 's/^states\t\([^ ]*\).*/\1/p')
    elif [[ $command == set ]]; then
        mapfile -t reply < <(eval "$ids" | sed 's/$/=/')
        compopt -o nospace
    elif [[ $command == show || $command == get || ($command == export && $before != export) ]]; then
        mapfile -t reply < <(eval "$ids")
    elif [[ $command == preview || $command == apply || $command == export ]]; then
        compopt -o default
        return
    fi
    mapfile -t COMPREPLY < <(compgen -W "${reply[*]}" -- "$word")
}
complete -F _qtune qtune qtune.exe
