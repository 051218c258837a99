# Pascal from the lines of idl.awk, in the form of Delphi's importer: members are safecall.
#
#   -v part=unit pass=1 FILE pass=2 FILE         the unit LIBRARY_TLB: interfaces, classes, constants
#   -v part=classes pass=1 FILE.. pass=2 FILE..  for brxModel.pas: a class for each interface
#   -v part=bodies pass=1 FILE.. pass=2 FILE..   for brxModel.pas: its members, which answer E_NOTIMPL

function type_of(type) {
    if (type ~ /^SAFEARRAY/) return "PSafeArray"
    sub(/\*$/, "", type)
    return type in pascal ? pascal[type] : type
}

# What is a word of the language gets a stroke behind it, as importers do.
function plain(name) { return tolower(name) in words_of_language ? name "_" : name }

# How an argument is passed. Arrays are handed over by reference, whichever way they go.
function argument(kind, type, name, preset, how) {
    how = kind == "out" ? "out " : kind == "inout" || type ~ /^SAFEARRAY/ ? "var " : type ~ /BSTR|\*/ ? "const " : ""
    if (how ~ /out|var/) sub(/\*$/, "", type)
    if (type == "VARIANT_BOOL" && preset != "") preset = preset == 0 ? "False" : "True"
    list = list (list == "" ? "" : "; ") how plain(name) ": " type_of(type) (preset == "" ? "" : " = " preset)
}

function remark(indent, text) {
    if (part == "unit" && text != "") print indent "{ " text " }"
}

# What a member is, is known when its arguments are.
function end_member(prefix, heading) {
    if (member == "") return
    prefix = kind == "get" ? "Get_" : kind == "put" ? "Set_" : ""
    heading = (list == "" ? "" : "(" list ")") (result == "" ? ";" : ": " result ";")
    if (part == "bodies") {
        print (result == "" ? "procedure " : "function ") class "." prefix member heading
        print "begin\n  raise Missing('" substr(class, 2) "." member "');\nend;\n"
    } else {
        remark("    ", member_help)
        print "    " (result == "" ? "procedure " : "function ") prefix member heading \
            (part == "classes" ? " virtual;" : "") " safecall;"
    }
    if (kind == "get" && list != "") indexed = "    property " plain(member) "[" list "]: " result " read Get_" member "; default;"
    else if (kind == "get" && member !~ /^_/) { readers[++properties] = member; types[member] = result }
    if (kind == "put") writers[member] = 1
    member = ""
}
function end_interface(at, name) {
    end_member()
    if (interface_name == "") return
    for (at = 1; at <= properties && part == "unit"; ++at) {
        name = readers[at]
        print "    property " plain(name) ": " types[name] " read Get_" name (name in writers ? " write Set_" name ";" : ";")
    }
    if (indexed != "" && part == "unit") print indexed
    if (part != "bodies") print "  end;\n"
    interface_name = indexed = ""
    properties = 0
    split("", writers)
}

function begin_unit(name, text) {
    print "{ " text ".\n\n  Members are safecall: what fails is raised as an exception, and what an object of yours raises"
    print "  is told to its caller. Made from " name ".idl. }\n\nunit " name "_TLB;\n"
    print "{$ifdef FPC}{$mode delphi}{$warn 5058 off}{$endif}\n\ninterface\n\nuses\n  ActiveX;\n\nconst"
}

BEGIN {
    FS = "\t"
    split("short SmallInt SHORT SmallInt long Integer LONG Integer float Single FLOAT Single double Double " \
        "BSTR WideString VARIANT_BOOL WordBool VARIANT OleVariant DATE TDateTime", words, " ")
    for (at = 1; at in words; at += 2) pascal[words[at]] = words[at + 1]
    split("array end file goto in label not object of or packed program property record repeat set string then to type " \
        "unit until uses var with", words, " ")
    for (at in words) words_of_language[words[at]] = 1
}

# First come the constants and the names of all interfaces, which know each other.
pass == 1 && part != "unit" { next }
pass == 1 {
    if ($1 == "library") {
        begin_unit($2, $4)
        print "  LIBID_" $2 ": TGUID = '{" $3 "}';"
    }
    if ($1 == "class") print "  CLASS_" $2 ": TGUID = '{" $3 "}';"
    if ($1 == "interface") { print "  IID_" $2 ": TGUID = '{" $3 "}';"; forward[++forwards] = $2 }
    if ($1 == "events") print "  DIID_" $2 ": TGUID = '{" $3 "}';"
    if ($1 == "constant") { sub(/^0x/, "$", $3); print "  " $2 " = Integer(" $3 ");" }
    next
}
FNR == 1 && pass == 2 && part == "unit" {
    print "\ntype"
    for (at = 1; at <= forwards; ++at) print "  " forward[at] " = interface;"
    print ""
}
$1 == "interface" {
    end_interface()
    interface_name = class = $2
    sub(/^_|^I/, "", class)
    class = "T" class
    remark("  ", $4)
    if (part == "unit") print "  " $2 " = interface(IDispatch)\n    ['{" $3 "}']"
    if (part == "classes") print "  " class " = class(TModelObject, " $2 ")\n  public"
}
$1 == "member" {
    end_member()
    kind = $2
    member = $3
    member_help = $4
    list = result = ""
}
$1 == "argument" && $2 == "result" { sub(/\*$/, "", $3); result = type_of($3) }
$1 == "argument" && $2 != "result" { argument($2, $3, kind == "put" ? "Value" : $4, $5) }
$1 == "class" || $1 == "events" { end_interface() }
$1 == "class" { creatable[++classes] = $2; given[$2] = $4 }

END {
    end_interface()
    if (part != "unit") exit
    for (at = 1; at <= classes; ++at)
        print "  Co" creatable[at] " = class\n    class function Create: " given[creatable[at]] ";\n  end;\n"
    print "implementation\n"
    if (classes > 0) print "uses\n  ComObj;\n"
    for (at = 1; at <= classes; ++at)
        print "class function Co" creatable[at] ".Create: " given[creatable[at]] ";\nbegin\n  Result := CreateComObject(CLASS_" \
            creatable[at] ") as " given[creatable[at]] ";\nend;\n"
    print "end."
}
