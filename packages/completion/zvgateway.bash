# Completion of zvgateway for bash. What there is to complete is taken from the --help of the program itself.

_zvgateway() {
    local program=${COMP_WORDS[0]} current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local command='' help keys word
    local -a commands
    help=$("$program" --help 2> /dev/null) || return
    mapfile -t commands < <(sed -n '/^Subcommands:/,/^$/s/^  \([a-z][a-z-]*\) .*/\1/p' <<< "$help")
    for word in "${commands[@]}"; do
        [[ $COMP_CWORD -le 1 || ${COMP_WORDS[1]} != "$word" ]] || command=$word
    done
    [[ -z $command ]] || help=$("$program" "$command" --help 2> /dev/null) || return

    if [[ $current == -* ]]; then
        word=$(sed -n 's/^  \(-[a-z],\)\{0,1\}\(--[a-z-]*\).*/\2/p' <<< "$help")
        mapfile -t COMPREPLY < <(compgen -W "$word" -- "$current")
    elif [[ -n $command || $current == = || $previous == = || $previous == --* ]]; then
        compopt -o filenames 2> /dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "${current#=}")
    else
        compopt -o nospace 2> /dev/null
        keys=$(sed -n '/^Subcommands:/,$s/^  \([A-Z][A-Za-z, ]*[A-Za-z]\)   *[^ ].*/\1/p' <<< "$help" | tr -d ,)
        mapfile -t COMPREPLY < <(compgen -S = -W "$keys" -- "$current")
        [[ $COMP_CWORD -ne 1 ]] ||
            mapfile -t -O ${#COMPREPLY[@]} COMPREPLY < <(compgen -S ' ' -W "${commands[*]}" -- "$current")
    fi
}
complete -F _zvgateway zvgateway
