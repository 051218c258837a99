# The help file: docs/dialogs.md as compiled HTML help, a topic for each dialog; sourced by kit.sh.
# shellcheck shell=bash disable=SC2154

# The topics that dialogs ask for, as "NUMBER CAPTION", by their sources.
topics_asked_for() {
    local file number
    while IFS=: read -r file number; do
        printf '%s %s\n' "$number" \
            "$(tr -s ' \n' ' ' <"$file" | grep -oE 'name = "dlg[A-Za-z]*", \.caption = "[^"]*"' | sed -E 's/.*"([^"]*)"$/\1/')"
    done < <(grep -roE 'SetupForm\(\*this, [0-9]+\)' "$brx_top/src" --include='*.cpp' | sed -E 's/SetupForm[^0-9]*([0-9]+).*/\1/')
    # These ask for the contents; a host can open their topics.
    printf '%s\n' '199 Configuration Properties' '200 Descriptor Type' '201 Descriptor Properties'
}

# "NUMBER PAGE", ascending, as viewers look for them.
help_numbers() {
    local number caption name
    while read -r number caption; do
        name=$(awk -F '\t' -v caption="${caption,,}" 'tolower($2) == caption { print $1 }' topics)
        [ -n "$name" ] || die "docs/dialogs.md has no heading for $caption"
        say "$number $name.html"
    done < <(topics_asked_for | LC_ALL=C sort -n)
}

# A list of contents or an index, from lines "NAME, tab, HEADING".
sitemap() {
    local name title
    say '<!DOCTYPE HTML PUBLIC "-//IETF//DTD HTML//EN">' '<html><body><ul>'
    while IFS=$'\t' read -r name title; do
        say "<li><object type=\"text/sitemap\"><param name=\"Name\" value=\"$title\"><param name=\"Local\" value=\"$name.html\"></object>"
    done
    say '</ul></body></html>'
}

# make_help FILE.chm FOLDER: its pages stay in the folder. page() is kit.sh's.
make_help() {
    local file=$1 work=$2 name title
    rm -rf "$work"
    mkdir -p "$work/pictures"
    fpc -O1 -v0 -FU"$work" -o"$work/help" "$brx_top/scripts/package/help.pas" >"$work/fpc.log" 2>&1 || {
        cat "$work/fpc.log" >&2
        die "what writes the help file cannot be compiled"
    }
    (
        cd "$work" || exit
        awk -v out=. -f "$brx_top/scripts/package/topics.awk" "$brx_top/docs/dialogs.md" >topics
        while IFS=$'\t' read -r name title; do page "$name.md" "$name.html"; done <topics
        grep -ohE 'src="pictures/[^"]*' ./*.html | cut -d '"' -f 2 | LC_ALL=C sort -u |
            (cd "$brx_top/docs" && xargs cp -t "$work/pictures")
        sitemap <topics >contents.hhc
        LC_ALL=C sort -f -t $'\t' -k 2 topics | sitemap >index.hhk
        help_numbers >numbers
        find . -name '*.html' -o -name '*.png' | sed 's#^\./##' | LC_ALL=C sort |
            ./help "$file" "OPC collection dialogs" the-dialogs.html contents.hhc index.hhk numbers ||
            die "the help file could not be made"
    )
}
