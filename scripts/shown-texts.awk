# Prints the texts in C++ sources that a person can be shown: FILE:LINE, a tab, the text. These are the string literals of
# two words and more, and those that are a message's text or title whatever they say, line by line. What controls are
# called and what they are for is not among them, nor are paths, formats, and what a trace tells.

function is_shown(text, before) {
    if (before ~ /\.(caption|accessible_name) *= *$/ || text ~ /^&/) return 0
    if (text ~ /\\\\/ || text ~ /^%/ || in_trace) return 0
    if (before ~ /\.(text|title) *= *$/) return text ~ /[[:alpha:]]/
    return text ~ /[[:alpha:]][^[:alpha:]]* +[^[:alpha:]]*[[:alpha:]][[:alpha:]]/
}

function print_lines(text, before,    lines, count, i) {
    if (!is_shown(text, before)) return
    count = split(text, lines, /(\\r|\\n)+/)
    for (i = 1; i <= count; ++i) {
        gsub(/ +/, " ", lines[i])
        gsub(/^ | $/, "", lines[i])
        if (lines[i] ~ /[[:alpha:]]/) printf "%s:%d\t%s\n", FILENAME, FNR, lines[i]
    }
}

FNR == 1 { in_comment = in_trace = 0; before = "" }

/trace::line\(/ { in_trace = 1 }

/^ *#/ { next }

{
    line = $0
    while (line != "") {
        if (in_comment) {
            if (!(end = index(line, "*/"))) break
            line = substr(line, end + 2)
            in_comment = 0
        } else if (line ~ /^\/\//) {
            break
        } else if (line ~ /^\/\*/) {
            in_comment = 1
        } else if (match(line, /^"([^"\\]|\\.)*"/)) {
            print_lines(substr(line, 2, RLENGTH - 2), before)
            line = substr(line, RLENGTH + 1)
            before = ""
        } else if (match(line, /^'([^'\\]|\\.)+'/)) {
            line = substr(line, RLENGTH + 1)
        } else {
            before = before substr(line, 1, 1)
            line = substr(line, 2)
        }
    }
    if ($0 ~ /}\);/) in_trace = 0
}
