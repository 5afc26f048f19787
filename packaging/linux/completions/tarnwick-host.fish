# Completion of tarnwick-host for fish.

# The command is the first word, whatever follows it.
function __tarnwick_host_is
    set -l words (commandline -opc)
    test (count $words) -gt 1; and contains -- $words[2] $argv
end

function __tarnwick_host_has_words
    test (count (commandline -opc)) -eq $argv[1]
end

complete -c tarnwick-host -f
complete -c tarnwick-host -n "__tarnwick_host_has_words 1" -a run -d 'Measure the file system that holds FOLDER'
complete -c tarnwick-host -n "__tarnwick_host_has_words 1" -a check -d 'Check whether a volume is as large as it says and keeps what it is given'
complete -c tarnwick-host -n "__tarnwick_host_has_words 1" -a show -d 'Show runs from their run files, and several side by side'
complete -c tarnwick-host -n "__tarnwick_host_has_words 1" -a history -d 'List, show, export or delete the runs that the window keeps'
complete -c tarnwick-host -n "__tarnwick_host_has_words 1" -a card -d 'Draw a picture of a run to share, or of several compared'
complete -c tarnwick-host -n "__tarnwick_host_has_words 1" -a facts -d 'Show what holds FOLDER: volume, file system, drive and its health'
complete -c tarnwick-host -n "__tarnwick_host_has_words 1" -a volumes -d 'List the mounted volumes'
complete -c tarnwick-host -n "__tarnwick_host_has_words 1" -a smart-report -d 'Print the health of the drive that holds FOLDER'
complete -c tarnwick-host -n "__tarnwick_host_has_words 1" -l help -d 'Show this text, or behind a command that command\'s options'
complete -c tarnwick-host -n "__tarnwick_host_has_words 1" -l version -d 'Show the version'

complete -c tarnwick-host -n "__tarnwick_host_is run" -l tests -x -a '(__fish_append , sequentialWrite sequentialRead randomRead randomWrite fileOps)' -d 'Tests to run, always in this order: sequentialWrite, sequentialRead, randomRead, randomWrite, fileOps (default: all)'
complete -c tarnwick-host -n "__tarnwick_host_is run" -l size -x -a '1GiB 5GiB 10GiB 20GiB 64GiB fill' -d 'Size of the data file, or fill the disk (default: 5GiB)'
complete -c tarnwick-host -n "__tarnwick_host_is run" -l leave-free -x -a '0 64MiB 1GiB' -d 'What --size fill leaves free (default: 1GiB)'
complete -c tarnwick-host -n "__tarnwick_host_is run" -l write-block -x -a '4KiB 64KiB 1MiB 4MiB' -d 'Bytes per call, sequential write (default: 1MiB)'
complete -c tarnwick-host -n "__tarnwick_host_is run" -l read-block -x -a '4KiB 64KiB 1MiB 4MiB' -d 'Bytes per call, sequential read (default: 1MiB)'
complete -c tarnwick-host -n "__tarnwick_host_is run" -l random-block -x -a '4KiB 16KiB 64KiB' -d 'Bytes per random operation (default: 4KiB)'
complete -c tarnwick-host -n "__tarnwick_host_is run" -l random-ops -x -d 'Operations in each random test (default: 10000)'
complete -c tarnwick-host -n "__tarnwick_host_is run" -l file-ops -x -d 'Files in the file-operations test (default: 1000)'
complete -c tarnwick-host -n "__tarnwick_host_is run" -l cached -d 'Let the system cache the data file, as ordinary programs do'
complete -c tarnwick-host -n "__tarnwick_host_is run" -l sample-interval -x -d 'Least seconds between two samples (default: 0.02)'
complete -c tarnwick-host -n "__tarnwick_host_is run" -l json -d 'Print one JSON object: the plan, every figure, every sample, date, folder, volume, file system, drive, kernel, and under "evidence" and "remarks" what was observed and what it says'
complete -c tarnwick-host -n "__tarnwick_host_is run" -l output -r -F -d 'Write a run file there, for the window, for "show" and for others'
complete -c tarnwick-host -n "__tarnwick_host_is run" -l force -d 'Let --output replace a file of any content'
complete -c tarnwick-host -n "__tarnwick_host_is run" -l keep -d 'Add the run to the window\'s history'
complete -c tarnwick-host -n "__tarnwick_host_is run" -l handoff -d 'Write a run file for the window and for "show", and print its path as the last line; with --json: as "handoffFile" in the object'
complete -c tarnwick-host -n "__tarnwick_host_is run" -l card -x -a 'light dark' -d 'Draw a picture of the run to share, in light or dark colours, and print its path as the last line; with --json: as "cardFile"'
complete -c tarnwick-host -n "__tarnwick_host_is run" -l help -d 'Show this text'

complete -c tarnwick-host -n "__tarnwick_host_is check" -l size -x -a '1GiB 5GiB 10GiB 20GiB 64GiB all' -d 'How much to write and read back (default: all free space)'
complete -c tarnwick-host -n "__tarnwick_host_is check" -l leave-free -x -a '0 64MiB 1GiB' -d 'How much stays free in any case (default: 64MiB)'
complete -c tarnwick-host -n "__tarnwick_host_is check" -l quick -d 'Samples across the range, in seconds: finds a false capacity, and proves nothing when it finds none'
complete -c tarnwick-host -n "__tarnwick_host_is check" -l again -x -d 'Read everything once more, S seconds later'
complete -c tarnwick-host -n "__tarnwick_host_is check" -l json -d 'Print one JSON object: the verdict, the sentence, and all that was found'
complete -c tarnwick-host -n "__tarnwick_host_is check" -l help -d 'Show this text'

complete -c tarnwick-host -n "__tarnwick_host_is show" -l format -x -a 'text markdown csv json' -d 'As text (default), markdown, csv or json'
complete -c tarnwick-host -n "__tarnwick_host_is show" -l help -d 'Show this text'

complete -c tarnwick-host -n "__tarnwick_host_is history" -l format -x -a 'text markdown csv json' -d 'As text (default), markdown, csv or json'
complete -c tarnwick-host -n "__tarnwick_host_is history" -l output -r -F -d 'The file that "export" writes'
complete -c tarnwick-host -n "__tarnwick_host_is history" -l force -d 'Let --output replace a file of any content'
complete -c tarnwick-host -n "__tarnwick_host_is history" -l all -d 'Let "delete" delete all runs'
complete -c tarnwick-host -n "__tarnwick_host_is history" -l help -d 'Show this text'

complete -c tarnwick-host -n "__tarnwick_host_is card" -l dark -d 'Draw it in the dark colours'
complete -c tarnwick-host -n "__tarnwick_host_is card" -l help -d 'Show this text'

complete -c tarnwick-host -n "__tarnwick_host_is facts" -l json -d 'Print the facts as one JSON object'
complete -c tarnwick-host -n "__tarnwick_host_is facts" -l help -d 'Show this text'

complete -c tarnwick-host -n "__tarnwick_host_is volumes" -l json -d 'Print the list as one JSON array'
complete -c tarnwick-host -n "__tarnwick_host_is volumes" -l help -d 'Show this text'

complete -c tarnwick-host -n "__tarnwick_host_is smart-report" -l help -d 'Show this text'

complete -c tarnwick-host -n "__tarnwick_host_is run check facts smart-report" -a '(__fish_complete_directories (commandline -ct) "")'
complete -c tarnwick-host -n "__tarnwick_host_is show card" -k -a '(__fish_complete_suffix .tarnwickrun)'
complete -c tarnwick-host -n "__tarnwick_host_is history; and __tarnwick_host_has_words 2" -a 'list show export delete'
complete -c tarnwick-host -n "__tarnwick_host_is history; and not __tarnwick_host_has_words 2" -a '(tarnwick-host history list 2>/dev/null | string match -r "^[0-9A-F]{8,}")'
