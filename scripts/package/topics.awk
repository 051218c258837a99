# Cuts docs/dialogs.md into the topics of the help file, one for each heading of the first two levels, in the folder
# `out`; prints NAME, a tab and the heading for each.

# As page.awk names headings.
function name_of(heading, name) {
    name = tolower(heading)
    gsub(/[^a-z0-9 _-]/, "", name)
    gsub(/ /, "-", name)
    return name
}

/^##? / {
    heading = $0
    sub(/^##? /, "", heading)
    name = name_of(heading)
    print name "\t" heading
    sub(/^##/, "#")
}
# What leads to documents for the makers of hosts is text here.
{
    while (match($0, /\[[^]]*\]\([a-z]+\.md[^)]*\)/)) {
        link = substr($0, RSTART + 1, RLENGTH - 1)
        sub(/\].*/, "", link)
        $0 = substr($0, 1, RSTART - 1) link substr($0, RSTART + RLENGTH)
    }
    print > (out "/" name ".md")
}
