# Completion of wayloom's arguments for bash.
_wayloom() {
  local word=$2 before=$3
  case $before in
    --root | --regions | --tour) mapfile -t COMPREPLY < <(compgen -d -- "$word") && return ;;
    --appearance) mapfile -t COMPREPLY < <(compgen -W "light dark" -- "$word") && return ;;
  esac
  mapfile -t COMPREPLY < <(
    compgen -W "--root --regions --appearance --tour --help --version" -- "$word"
  )
}
complete -o filenames -F _wayloom wayloom
