# Completion of wayloomctl's arguments for bash.
_wayloomctl_words() {
  case $1 in
    "") echo "status mode fixed route favorites apps whitelist search address region" \
      "--root --regions --service --json --help --version" ;;
    mode) echo "fixed route" ;;
    fixed) echo "on off move drift speed" ;;
    "fixed drift") echo "on off" ;;
    "fixed drift on" | "fixed drift off") echo "--speed" ;;
    route) echo "plan on off where" ;;
    "route plan") echo "--from --to --start --geojson --profile" ;;
    "route on") echo "--from --to --start --end" ;;
    "route where") echo "--at" ;;
    favorites) echo "list add remove choose rename move export import" ;;
    "favorites export"*) echo "--format" ;;
    whitelist) echo "list toggle set" ;;
    "whitelist set") echo "list save use remove" ;;
    search*) echo "--near --limit --suggest" ;;
    region) echo "list import remove" ;;
    "region import"*) echo "--name" ;;
  esac
}

_wayloomctl() {
  local word=$2 before=$3 command="" i
  case $before in
    --root | --regions) mapfile -t COMPREPLY < <(compgen -d -- "$word") && return ;;
    --service) mapfile -t COMPREPLY < <(compgen -W "regions web" -- "$word") && return ;;
    --format) mapfile -t COMPREPLY < <(compgen -W "gpx kml geojson" -- "$word") && return ;;
    import | export) mapfile -t COMPREPLY < <(compgen -f -- "$word") && return ;;
    --from | --to | --start | --end | --at | --speed | --near | --limit | --name) return ;;
  esac
  for ((i = 1; i < COMP_CWORD; ++i)); do
    case ${COMP_WORDS[i]} in
      --root | --regions | --service | --from | --to | --start | --end | --at | --speed | --near | \
        --limit | --name | --format) ((++i)) ;;
      -*) ;;
      *) command+="${command:+ }${COMP_WORDS[i]}" ;;
    esac
  done
  mapfile -t COMPREPLY < <(compgen -W "$(_wayloomctl_words "$command")" -- "$word")
}
complete -o filenames -F _wayloomctl wayloomctl
