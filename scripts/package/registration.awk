# What a registered component has in the registry below Software\Classes, made from its IDL, for installers, which write
# it themselves: a line each, "scope key name text" divided by tabs.
#
#   awk -v platform=win64 -f registration.awk brxOpcDlgs6.idl
#
# scope: own, for programs of the DLL's bits, or shared by all. In a text @DLL@ stands for the full path of the DLL and
# @FOLDER@ for its folder. The check part `package` compares this with what the DLL registers by itself.

function line(scope, key, name, text) { print scope "\t" key "\t" name "\t" text }
function attribute(name) { return match(pending, name "\\([^)]*\\)") ? substr(pending, RSTART + length(name) + 1, RLENGTH - length(name) - 2) : "" }
function unquoted(text) { gsub(/^"|"$/, "", text); return text }

function begin_library(name) {
    library = name
    library_id = "{" toupper(attribute("uuid")) "}"
    version = attribute("version")
    split(version, numbers, ".")
    key = "TypeLib\\" library_id "\\" version
    line("own", key "\\0\\" platform, "", "@DLL@")
    line("shared", key, "", unquoted(attribute("helpstring")))
    line("shared", key "\\FLAGS", "", "0")
    line("shared", key "\\HELPDIR", "", "@FOLDER@")
}

function describe_interface(name) {
    key = "Interface\\{" toupper(attribute("uuid")) "}"
    line("own", key, "", name)
    line("own", key "\\ProxyStubClsid32", "", "{00020424-0000-0000-C000-000000000046}")
    line("own", key "\\TypeLib", "", library_id)
    line("own", key "\\TypeLib", "Version", version)
}

function describe_class(name) {
    id = "{" toupper(attribute("uuid")) "}"
    help = unquoted(attribute("helpstring"))
    key = "CLSID\\" id
    program = library "." name
    versioned = program "." numbers[1]
    line("own", key, "", help)
    line("own", key "\\InprocServer32", "", "@DLL@")
    line("own", key "\\InprocServer32", "ThreadingModel", "Apartment")
    line("own", key "\\ProgID", "", program)
    line("own", key "\\TypeLib", "", library_id)
    line("own", key "\\Version", "", version)
    line("own", key "\\VersionIndependentProgID", "", program)
    line("shared", program, "", help)
    line("shared", program "\\CLSID", "", id)
    line("shared", program "\\CurVer", "", versioned)
    line("shared", versioned, "", help)
    line("shared", versioned "\\CLSID", "", id)
}

/^ *\/\// { next }
/^ *\[/ { pending = "" }
$1 == "library" { begin_library($2) }
$1 == "interface" && /: IDispatch/ { describe_interface($2) }
$1 == "coclass" { describe_class($2) }
{ pending = pending $0 }
