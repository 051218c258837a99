# The side-by-side manifest of the DLL, from the lines of registration.awk.
#
#   awk -F '\t' -v architecture=amd64 -v name=NAME -v file=FILE.dll -f assembly.awk LINES
#
# Its version is the library's, so that a host's manifest need not change with every DLL.

$2 ~ /^TypeLib\\[^\\]*\\[0-9.]*$/ { split($2, part, "\\"); library = part[2]; version = part[3] }
$2 ~ /^CLSID\\[^\\]*$/ { split($2, part, "\\"); id[++count] = part[2]; help[count] = $4 }
$2 ~ /\\ProgID$/ { program[count] = $4 }
$2 ~ /\\CurVer$/ { versioned[count] = $4 }
$3 == "ThreadingModel" { model[count] = $4 }

END {
    print "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>"
    print "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">"
    print "  <assemblyIdentity type=\"win32\" name=\"" name "\" version=\"" version ".0.0\" processorArchitecture=\"" architecture "\"/>"
    print "  <file name=\"" file "\">"
    print "    <typelib tlbid=\"" library "\" version=\"" version "\" helpdir=\"\"/>"
    for (i = 1; i <= count; ++i) {
        print "    <comClass clsid=\"" id[i] "\" progid=\"" program[i] "\""
        print "              tlbid=\"" library "\" threadingModel=\"" model[i] "\" description=\"" help[i] "\">"
        print "      <progid>" versioned[i] "</progid>"
        print "    </comClass>"
    }
    print "  </file>"
    print "</assembly>"
}
