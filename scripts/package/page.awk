# Makes a page of what cmark-gfm wrote: a frame around it, names for the headings.
#
#   cmark-gfm --extension table FILE.md | awk -v title=TITLE -f page.awk

# The name that links in the documents know a heading by.
function name_of(heading, name) {
    name = tolower(heading)
    gsub(/<[^>]*>|&[a-z]*;/, "", name)
    gsub(/[^a-z0-9 _-]/, "", name)
    gsub(/ /, "-", name)
    return name
}

BEGIN {
    print "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" title "</title>\n<style>"
    print "body { font: 16px/1.5 'Segoe UI', sans-serif; max-width: 60em; margin: 2em auto; padding: 0 1em; }"
    print "code, pre { font-family: Consolas, monospace; font-size: 0.9em; background: #f4f4f4; }"
    print "pre { padding: 0.7em 1em; overflow: auto; } img { max-width: 100%; }"
    print "table { border-collapse: collapse; } td, th { border: 1px solid #ccc; padding: 0.3em 0.6em; }"
    print "td, th { vertical-align: top; text-align: left; }"
    print "</style>\n</head>\n<body>"
}
match($0, /^<h[1-6]>/) {
    level = substr($0, 3, 1)
    heading = $0
    gsub(/^<h[1-6]>|<\/h[1-6]>$/, "", heading)
    $0 = "<h" level " id=\"" name_of(heading) "\">" heading "</h" level ">"
}
{ print }
END { print "</body>\n</html>" }
