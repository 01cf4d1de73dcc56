# Completion of svgdraw for bash.

_svgdraw() {
    local word=${COMP_WORDS[COMP_CWORD]}
    COMPREPLY=()
    case $word in
    -*) mapfile -t COMPREPLY < <(compgen -W "--help --version" -- "$word") ;;
    *) [ "$COMP_CWORD" -gt 2 ] || mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
    esac
}
complete -o filenames -F _svgdraw svgdraw
