# bash completion for quillmonger

_quillmonger_setting_names() {
  quillmonger defaults read 2>/dev/null | sed 's/ = .*//'
}

_quillmonger() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local words=
  case $previous in
    --limit) return ;;
    --type) words="text/plain text/html text/rtf image/png image/jpeg image/tiff" ;;
    *)
      case ${COMP_WORDS[1]}:$COMP_CWORD in
        *:1) words="toggle show settings about list search copy paste delete clear incognito defaults quit --help --version" ;;
        list:*) words="--limit --json --help" ;;
        search:*) words="--regex --limit --json --help" ;;
        copy:*) words="--type --help" ;;
        paste:*) words="--print --json --help" ;;
        clear:*) words="--yes --help" ;;
        incognito:*) words="on off toggle status --json --help" ;;
        defaults:2) words="read write delete --help" ;;
        defaults:3) words="$(_quillmonger_setting_names) --help" ;;
        defaults:*) ;;
        *) words="--help" ;;
      esac
      [[ ${COMP_WORDS[1]}:${COMP_WORDS[2]} == defaults:read ]] && words+=" --json"
      ;;
  esac
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}

complete -F _quillmonger quillmonger
