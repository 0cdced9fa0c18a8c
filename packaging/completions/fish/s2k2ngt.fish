# Completes the command line of s2k2ngt in fish.
complete -c s2k2ngt -l json -d 'Print what became of each file as one line of JSON'
complete -c s2k2ngt -l quiet -d 'Show no messages and no progress, only failures'
complete -c s2k2ngt -l no-progress -d 'Show no progress bar'
complete -c s2k2ngt -l list-messages -d 'Print the key and the text of every message'
complete -c s2k2ngt -l help -d 'Print a summary of the options'
complete -c s2k2ngt -l version -d 'Print the version'
complete -c s2k2ngt -k -x -a '(__fish_complete_suffix .s2k)'
