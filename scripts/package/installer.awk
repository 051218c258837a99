# What the NSIS installer writes into the registry and takes back, from the lines of registration.awk.
#
#   awk -F '\t' -v bits=64 -v shared=1 -v deed=write -f installer.awk LINES
#
# deed is write or remove; with shared=0 only what belongs to programs of these bits.

function quoted(text) { gsub(/\$/, "$$", text); gsub(/"/, "$\\\"", text); return "\"" text "\"" }
function place(text) { sub(/@DLL@/, "$INSTDIR\\" folder "\\brxOpcDlgs6.dll", text); sub(/@FOLDER@/, "$INSTDIR\\" folder, text); return text }

BEGIN { folder = bits == 64 ? "x64" : "x86" }
$1 == "shared" && !shared { next }
deed == "write" {
    text = $4 ~ /@/ ? "\"" place($4) "\"" : quoted($4)
    print "WriteRegStr SHCTX " quoted("Software\\Classes\\" $2) " " quoted($3) " " text
}
deed == "remove" {
    print "DeleteRegValue SHCTX " quoted("Software\\Classes\\" $2) " " quoted($3)
    for (key = $2; key != ""; key = key ~ /\\/ ? substr(key, 1, match(key, /\\[^\\]*$/) - 1) : "")
        print "DeleteRegKey /ifempty SHCTX " quoted("Software\\Classes\\" key)
}
