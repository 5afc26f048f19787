# Completion of tarnwick for fish.

complete -c tarnwick -f
complete -c tarnwick -l help -d 'Show what the words mean'
complete -c tarnwick -l version -d 'Show the version'
complete -c tarnwick -k -a '(__fish_complete_suffix .tarnwickrun)'
