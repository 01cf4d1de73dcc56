# Completion of gliololok-shape for bash.

_gliololok_shape() {
    local word=${COMP_WORDS[COMP_CWORD]} command=${COMP_WORDS[1]} options
    COMPREPLY=()
    if [ "$COMP_CWORD" -eq 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W "new lint look check preview import --help --version" -- "$word")
        return
    fi
    case $command in
    new) options="--cpp --from --dir --help" ;;
    lint) options="--json --help" ;;
    look) options="--help" ;;
    check) options="--json --only --help" ;;
    preview) options="--png --sheet --help" ;;
    import) options="--group --into --help" ;;
    *) return ;;
    esac
    case $word in
    -*) mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word") ;;
    *) mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
    esac
}
complete -o filenames -F _gliololok_shape gliololok-shape
