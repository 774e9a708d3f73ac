# Completion of kwselect for fish. What can be asked for is asked of the drawing on the line.

function __kwselect_drawing
    for word in (commandline -opc)[2..-1]
        if test -f $word
            echo $word
            return
        end
    end
end

function __kwselect_types
    kwselect (__kwselect_drawing) --list types --format tsv 2>/dev/null | cut -f1
end

function __kwselect_listed
    set -l words (commandline -opc)
    set -l given
    for i in (seq (math (count $words) - 1))
        if contains -- $words[$i] -t --type
            set -a given --type $words[(math $i + 1)]
        else if test $argv[1] != properties; and contains -- $words[$i] -p --property
            set -a given --property $words[(math $i + 1)]
        end
    end
    kwselect (__kwselect_drawing) --list $argv[1] $given --format tsv 2>/dev/null | cut -f1
end

complete -c kwselect -s f -l filter -x -d 'The filter, as an option'
complete -c kwselect -s t -l type -x -a '(__kwselect_types)' -d 'Object type'
complete -c kwselect -s p -l property -x -a '(__kwselect_listed properties)' -d 'Property'
complete -c kwselect -s o -l operator -x -a '(__kwselect_listed operators)' -d 'Operator'
complete -c kwselect -s v -l value -x -a '(__kwselect_listed values)' -d 'Value to compare with'
complete -c kwselect -l exclude -d 'Select what does not match'
complete -c kwselect -l then -x -d 'A further filter over the selection'
complete -c kwselect -l append -x -d 'A further filter that adds to the selection'
complete -c kwselect -l tolerance -x -d 'Within what numbers count as equal'
complete -c kwselect -l recent -x -d 'The filter of that place among those run last in kwdraw'
complete -c kwselect -l filters -r -d 'The file of filters with names'
complete -c kwselect -l space -x -a 'model paper: block: all' -d 'Where to search'
complete -c kwselect -l list -x -a 'types properties operators values filters recent' -d 'List what can be asked for'
complete -c kwselect -l dump -d 'Print every entity with all its properties'
complete -c kwselect -s c -l count -d 'Print how many'
complete -c kwselect -l group-by -x -a '(__kwselect_listed properties)' -d 'Print the values of a property'
complete -c kwselect -l why -x -d 'Tell why an entity is selected or not'
complete -c kwselect -l audit -d 'Print what is wrong with the file'
complete -c kwselect -l explain -d 'Give an account of the answer'
complete -c kwselect -l format -x -a 'handles table tsv csv json jsonl' -d 'How to print'
complete -c kwselect -l columns -x -a '(__kwselect_listed properties)' -d 'What to print of each entity'
complete -c kwselect -l write -r -d 'Write the selection as a drawing'
complete -c kwselect -l output -r -d 'A file to write to'
complete -c kwselect -l overwrite -d 'The file may be there already'
complete -c kwselect -s j -l jobs -x -d 'Drawings read at a time'
complete -c kwselect -l help -d 'Print the options'
complete -c kwselect -l version -d 'Print the version'
