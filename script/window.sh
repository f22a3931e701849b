# Works with the window of a Calquo by real keys and clicks, and waits for what it shows. Bash, sourced after lib.sh; $width
# is win64 or win32, and $folder the build folder.
#
# work_keys takes text as it is typed, with these in braces: keys by X's names, like {Return} and {ctrl+z}, and the functions
# do_... below, each by its name and arguments, like {choose b k b}.
# shellcheck shell=bash disable=SC2120,SC2154

# What the title of Calquo's window begins with.
title='Calquo '

# fault TEXT: how a failure is told.
fault() { fail "$@"; }
# wait_for SECONDS WHAT COMMAND...
wait_for() { wait_until "$1" "${@:3}" || fault "$2: not within $1 seconds"; }

# --- What the window shows ------------------------------------------------------------------------------------------

# One reader of the window for all questions: starting one takes longer than to press keys.
start_reader() {
    coproc reader_process { with_wine "$width" wine "$folder/script/read_work_area.exe" --serve 2>/dev/null; }
    # Bash closes a coprocess's own descriptors in subshells.
    exec {to_reader}>&"${reader_process[1]}" {from_reader}<&"${reader_process[0]}"
}
# ask QUESTION: leaves the reader's answer in $answer.
ask() {
    printf '%s\n' "$1" >&"$to_reader"
    IFS= read -r -t 30 -u "$from_reader" answer || fault "the reader of the window does not answer"
}
# expect EXPECTATION: the sheet and facts, as tests/windows/scenarios.txt says.
expect() {
    ask "expect $1"
    [ "$answer" = ok ] || fault "expected $1 but saw $answer"
}
is_over() { ! kill -0 "$1" 2>/dev/null; }
# The X window that keys go to has a title that begins so.
has_keys() { [[ $(xdotool getwindowfocus getwindowname 2>/dev/null) = "$1"* ]]; }

# --- The program ----------------------------------------------------------------------------------------------------

# begin [NAME=VALUE...]: without waiting for the window; the variables are the program's.
do_begin() {
    with_wine "$width" env "$@" wine "$folder/Calquo.exe" </dev/null >/dev/null 2>&1 &
    program=$!
}
do_start() {
    do_begin "$@"
    do_back
    expect '* !! focus work area'
}
# end [STATUS]: the program ends by itself, with this exit status.
do_end() {
    local status=0
    wait_for 10 "the program ends" is_over "$program"
    wait "$program" || status=$?
    [ "$status" = "${1-0}" ] || fault "the program ended with exit status $status"
}
do_leave() {
    xdotool key alt+F4
    do_end
}
# A second start while the program runs.
do_again() {
    local first=$program
    do_begin
    do_end 1
    program=$first
}
# The process that a background job has become, or has started last.
last_descendant() {
    local process=$1 child
    while child=$(pgrep -n -P "$process"); do
        process=$child
    done
    printf '%s\n' "$process"
}
# kill [PROCESS]: by default the program.
do_kill() {
    kill -9 "$(last_descendant "${1-$program}")" 2>/dev/null || true
    wait "${1-$program}" || true
}

# --- Keys and the mouse ---------------------------------------------------------------------------------------------

# to TITLE: waits until a window has the keys.
do_to() { wait_for 30 "the keys go to $*" has_keys "$*"; }
# The same for Calquo's own window; activate brings it forward.
do_back() { do_to "$title"; }
do_activate() {
    xdotool search --name "^$title" windowactivate
    do_back
}
# choose KEY...: opens the menu and goes down by mnemonics, each when the submenu before it is on the screen.
do_choose() {
    local open=1 key
    xdotool key alt
    for key in "$@"; do
        expect "* !! menus $open"
        xdotool key "$key"
        [ ${#key} != 1 ] || open=$((open + 1))
    done
    expect '* !! menus 0'
}
# menu BUTTON: of the caption. The menu opens under the pointer, which leaves at once, but may have opened a submenu before.
do_menu() {
    is_one_menu() {
        ask 'fact menus'
        [ "$answer" != 2 ] || xdotool key Escape
        [ "$answer" = 1 ]
    }
    do_click 9011 "$1"
    xdotool mousemove_relative -- 0 -80
    wait_for 5 "the button $1 opens a menu" is_one_menu
}
# file NAME: in the file dialog that is open.
do_file() {
    expect '* !! focus Edit'
    xdotool key ctrl+a type --delay 15 -- "$*"
    xdotool key Return
    do_back
    expect '* !! focus work area'
}
# point PANEL BUTTON, by its label or its number in the panel; or point caption|corner|sheet X Y: from there.
do_point() {
    local left top right bottom
    ask "fact place"
    read -r left top right bottom <<<"$answer"
    case $1 in
        # Its middle is half a button below the frame.
        caption) xdotool mousemove $(((left + right) / 2)) $((top + 13)) ;;
        corner) xdotool mousemove $((right + $2)) $((bottom + $3)) ;;
        sheet)
            ask "fact sheet"
            read -r left top right bottom <<<"$answer"
            xdotool mousemove $((left + $2)) $((top + $3))
            ;;
        *)
            ask "button $1 $2"
            [ -n "$answer" ] || fault "there is no button $2"
            # shellcheck disable=SC2086
            xdotool mousemove $answer
            ;;
    esac
}
# click PANEL BUTTON [TIMES]
do_click() {
    do_point "$@"
    do_mouse 1 "${3-1}"
}
# mouse BUTTON [TIMES]: where it points; 3 is the right button, 4 and 5 are the wheel.
do_mouse() { xdotool click --repeat "${2-1}" --delay 40 "$1"; }
do_down() { xdotool mousedown 1; }
do_up() { xdotool mouseup 1; }
# A click as long as a person's, where the press makes the window manager take over the mouse or a menu give it up: an
# earlier release would get lost. (The window manager also misses the second click on the caption of a window that was
# maximized and restored before.)
do_press() { xdotool mousedown 1 sleep 0.12 mouseup 1 sleep 0.12; }
# drag DX DY: from where the mouse points, in steps, the first when the button has been down for a while.
do_drag() {
    local step=(sleep 0.1 mousemove_relative -- $(($1 / 5)) $(($2 / 5)))
    xdotool mousedown 1 "${step[@]}" "${step[@]}" "${step[@]}" "${step[@]}" "${step[@]}" sleep 0.1 mouseup 1
}
# size DX DY: makes the window larger, at its lower right corner. The frame is the window manager's to draw.
do_size() {
    local window WIDTH HEIGHT
    window=$(xdotool search --onlyvisible --name "^$title")
    eval "$(xdotool getwindowgeometry --shell "$window")"
    xdotool windowsize "$window" $((WIDTH + $1)) $((HEIGHT + $2))
}
# Keeps the facts of now for expectations with "@".
do_keep() { ask keep; }

# Types and presses what the text says, in as few calls as it takes.
work_keys() {
    local keys=$1 piece words calls=()
    while [ -n "$keys" ]; do
        [[ $keys =~ ^(\{([^}]+)\}|[^{]+) ]]
        piece=${BASH_REMATCH[1]}
        read -ra words <<<"${BASH_REMATCH[2]}"
        if [ ${#words[@]} = 0 ]; then
            calls+=(type --args 1 --delay 15 -- "$piece")
        elif ! declare -F "do_${words[0]}" >/dev/null; then
            calls+=(key --delay 15 "${words[0]}")
        else
            [ ${#calls[@]} = 0 ] || xdotool "${calls[@]}"
            calls=()
            "do_${words[0]}" "${words[@]:1}"
        fi
        keys=${keys:${#piece}}
    done
    [ ${#calls[@]} = 0 ] || xdotool "${calls[@]}"
}
