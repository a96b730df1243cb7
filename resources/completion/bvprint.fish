# SPDX-License-Identifier: GPL-2.0-or-later
# Completion of bvprint in fish. All words come from bvprint, which asks a print server for two seconds at most.

function __bvprint_words
    set -l words (commandline -opc)
    set -l session
    for i in (seq 2 (count $words))
        switch $words[$i]
            case -d --queue --ppd
                test $i -lt (count $words); and set -a session $words[$i] $words[(math $i + 1)]
            case '--queue=*' '--ppd=*'
                set -a session $words[$i]
        end
    end
    $words[1] --complete $argv $session 2>/dev/null
end

function __bvprint_choices
    set -l word (string replace -r '^--option=' '' -- (commandline -ct))
    set -l key (string match -r '^[^=]+=' -- $word)
    if test -n "$key"
        __bvprint_words $key | string replace -r '^' -- $key
    else
        __bvprint_words keywords
    end
end

complete -c bvprint -n 'string match -q -- "-*" (commandline -ct)' -a '(__bvprint_words options)'
complete -c bvprint -s d -l queue -x -a '(__bvprint_words queues)'
complete -c bvprint -l preset -x -a '(__bvprint_words presets)'
complete -c bvprint -s o -l option -x -a '(__bvprint_choices)'
complete -c bvprint -l agent -x -a 'on off run'
complete -c bvprint -s n -l copies -x
complete -c bvprint -s P -l pages -x
complete -c bvprint -s t -l title -x
for option in device-uri job from complete
    complete -c bvprint -l $option -x
end
for option in batch plugin ppd ticket screenshot
    complete -c bvprint -l $option -r
end
