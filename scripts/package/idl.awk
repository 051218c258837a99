# What an interface definition declares, in lines whose fields are divided by tabs:
#
#   awk -f idl.awk LIBRARY.idl
#
#   library   NAME IDENTIFIER HELP
#   constant  NAME VALUE                   of an enumeration
#   interface NAME IDENTIFIER HELP
#   member    get|put|call NAME HELP ID    each followed by its arguments
#   argument  in|out|inout|result TYPE NAME DEFAULT
#   events    NAME IDENTIFIER              an interface that its owner calls
#   class     NAME IDENTIFIER INTERFACE    of those that can be created

# The text of a file and of what it includes, on one line and without remarks. Help comes out of it, as its number.
function text_of(file, line, all, name) {
    while ((getline line <file) > 0) {
        if (line ~ /^ *(\/\/|import|cpp_quote|#define)/) continue
        if (line ~ /^ *#include/) {
            name = line
            gsub(/^ *#include "|" *$/, "", name)
            if (name != "reserved.idh") all = all " " text_of(folder name)
            continue
        }
        while (match(line, /helpstring\("[^"]*"\)/)) {
            help[++helps] = substr(line, RSTART + 12, RLENGTH - 14)
            line = substr(line, 1, RSTART - 1) "help(" helps ")" substr(line, RSTART + RLENGTH)
        }
        if (match(line, /RESERVED\([0-9]+\)/))
            line = "[id(" reserved(line) ")] HRESULT Reserved" reserved(line) "();"
        all = all " " line
    }
    close(file)
    return all
}

function reserved(line) { return substr(line, RSTART + 9, RLENGTH - 10) }

# taken(PATTERN): cuts what matches off the front of the text; it is in `found`.
function taken(pattern) {
    sub(/^[ ;]+/, "", text)
    if (!match(text, "^(" pattern ")")) return 0
    found = substr(text, 1, RLENGTH)
    text = substr(text, RLENGTH + 1)
    return 1
}
function attribute(name) {
    if (!match(attributes, name "\\([^)]*\\)")) return ""
    return substr(attributes, RSTART + length(name) + 1, RLENGTH - length(name) - 2)
}
function name_in(words) {
    sub(/^ *[A-Za-z]+ +/, "", words)
    sub(/[^A-Za-z0-9_].*/, "", words)
    return words
}
function tell(kind, first, second, third, fourth) {
    print kind "\t" first "\t" second "\t" third (fourth == "" ? "" : "\t" fourth)
}

function argument(marks, words, name, kind, preset) {
    preset = ""
    if (match(marks, /defaultvalue\([^)]*\)/)) preset = substr(marks, RSTART + 13, RLENGTH - 14)
    kind = marks ~ /retval/ ? "result" : marks ~ /out/ ? (marks ~ /\[in/ ? "inout" : "out") : "in"
    gsub(/^ +| +$/, "", words)
    name = words
    sub(/^.*[ *]/, "", name)
    words = substr(words, 1, length(words) - length(name))
    gsub(/ /, "", words)
    tell("argument", kind, words, name, preset)
}
function member(words, marks) {
    tell("member", attributes ~ /propget/ ? "get" : attributes ~ /propput/ ? "put" : "call", name_in(words),
        help[attribute("help")], attribute("id"))
    while (match(words, /\[[^]]*\]/)) {
        marks = substr(words, RSTART, RLENGTH)
        words = substr(words, RSTART + RLENGTH)
        match(words, /^[^,[]*/)
        argument(marks, substr(words, 1, words ~ /\[/ ? RLENGTH : length(words) - 1))
    }
}
function constants(words, each, at, pair) {
    gsub(/^[^{]*{|}.*$/, "", words)
    split(words, each, ",")
    for (at = 1; at in each; ++at) {
        gsub(/ /, "", each[at])
        split(each[at], pair, "=")
        tell("constant", pair[1], pair[2])
    }
}

BEGIN {
    file = ARGV[1]
    folder = file
    sub(/[^\/]*$/, "", folder)
    text = text_of(file)
    while (text !~ /^[ ;]*$/) {
        attributes = taken("\\[[^]]*\\]") ? found : ""
        if (taken("library [^{]*{")) tell("library", name_in(found), attribute("uuid"), help[attribute("help")])
        else if (taken("HRESULT [^;]*")) member(found)
        else if (taken("interface [A-Za-z_]+;")) continue
        else if (taken("interface [^{]*{")) tell("interface", name_in(found), attribute("uuid"), help[attribute("help")])
        else if (taken("dispinterface [^{]*{[^}]*}")) tell("events", name_in(found), attribute("uuid"))
        else if (taken("enum [^{]*{[^}]*} *[A-Za-z]*")) constants(found)
        else if (taken("coclass [^{]*{[^}]*}")) {
            if (attributes !~ /noncreatable/) {
                name = name_in(found)
                sub(/.*\[default\] *interface +/, "", found)
                sub(/[ ;].*/, "", found)
                tell("class", name, attribute("uuid"), found)
            }
        } else if (!taken("typedef|importlib[^;]*|}")) {
            print "idl.awk: cannot read: " substr(text, 1, 80) >"/dev/stderr"
            exit 1
        }
    }
}
