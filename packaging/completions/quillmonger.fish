# fish completion for quillmonger

function __quillmonger_setting_names
    quillmonger defaults read 2>/dev/null | string replace --regex ' = .*' ''
end

complete -c quillmonger -f
complete -c quillmonger -l help -d 'Print the help'
complete -c quillmonger -n __fish_use_subcommand -l version -d 'Print the version'

complete -c quillmonger -n __fish_use_subcommand -a toggle -d 'Show the history, or hide it if it is showing'
complete -c quillmonger -n __fish_use_subcommand -a show -d 'Show the history'
complete -c quillmonger -n __fish_use_subcommand -a settings -d 'Show the settings'
complete -c quillmonger -n __fish_use_subcommand -a about -d 'Show what Quillmonger is, and its version'
complete -c quillmonger -n __fish_use_subcommand -a list -d 'Print the history, newest first'
complete -c quillmonger -n __fish_use_subcommand -a search -d 'Print what a term finds in the history'
complete -c quillmonger -n __fish_use_subcommand -a copy -d 'Put a text, or standard input, on the clipboard'
complete -c quillmonger -n __fish_use_subcommand -a paste -d 'Paste a record into the application in front, or print it'
complete -c quillmonger -n __fish_use_subcommand -a delete -d 'Delete records from the history'
complete -c quillmonger -n __fish_use_subcommand -a clear -d 'Delete the whole history'
complete -c quillmonger -n __fish_use_subcommand -a incognito -d 'Stop keeping copies, or keep them again'
complete -c quillmonger -n __fish_use_subcommand -a defaults -d 'Read and change settings'
complete -c quillmonger -n __fish_use_subcommand -a quit -d 'End Quillmonger'

complete -c quillmonger -n '__fish_seen_subcommand_from list search' -l limit -x -d 'Print so many records alone'
complete -c quillmonger -n '__fish_seen_subcommand_from list search paste incognito read' -l json -d 'Print JSON'
complete -c quillmonger -n '__fish_seen_subcommand_from search' -l regex -d 'Take the term as a regular expression'
complete -c quillmonger -n '__fish_seen_subcommand_from copy' -l type -x -d 'What the bytes are' \
    -a 'text/plain text/html text/rtf image/png image/jpeg image/tiff'
complete -c quillmonger -n '__fish_seen_subcommand_from paste' -l print -d 'Print the text instead'
complete -c quillmonger -n '__fish_seen_subcommand_from clear' -l yes -d "Don't ask"
complete -c quillmonger -n '__fish_seen_subcommand_from incognito' -a 'on off toggle status'
complete -c quillmonger -n '__fish_seen_subcommand_from defaults; and not __fish_seen_subcommand_from read write delete' \
    -a 'read write delete'
complete -c quillmonger -n '__fish_seen_subcommand_from defaults; and __fish_seen_subcommand_from read write delete' \
    -a '(__quillmonger_setting_names)'
