# Completion of gliololok-board for bash.

_gliololok_board() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    case $before in
    --plugins | --shapes | --export) mapfile -t COMPREPLY < <(compgen -d -- "$word") && return ;;
    --format) mapfile -t COMPREPLY < <(compgen -W "png svg pdf" -- "$word") && return ;;
    --language) mapfile -t COMPREPLY < <(compgen -W "de en" -- "$word") && return ;;
    --scale | --thumbnail-size) return ;;
    esac
    case $word in
    -*)
        mapfile -t COMPREPLY < <(compgen -W "--plugins --shapes --export --format --scale --thumbnail --thumbnail-size
            --play --present --demo --language --dark --help --version" -- "$word")
        ;;
    *) mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
    esac
}
complete -o filenames -F _gliololok_board gliololok-board
