# C# from the lines of idl.awk: what fails is an exception, on either side of a call.
#
#   -v part=library pass=1 FILE pass=2 FILE      LIBRARY.cs: interfaces, classes, constants
#   -v part=classes pass=1 FILE.. pass=2 FILE..  for brxModel.cs: a class for each interface; members answer E_NOTIMPL

function marshalled(type) { return "MarshalAs(UnmanagedType." type ")" }
function array_of(type) {
    gsub(/^SAFEARRAY\(|\)\**$/, "", type)
    return "MarshalAs(UnmanagedType.SafeArray, SafeArraySubType = VarEnum." variants[type] ")"
}
# How a value goes over, which only interfaces say; nothing where the language's own way is the right one.
function way_of(type) {
    if (part == "classes") return ""
    if (type ~ /^SAFEARRAY/) return array_of(type)
    sub(/\*+$/, "", type)
    return type in ways ? marshalled(ways[type]) : ""
}
function type_of(type) {
    if (type ~ /^SAFEARRAY/) return "Array"
    sub(/\*+$/, "", type)
    return type in types ? types[type] : (part == "classes" ? library_of[type] "." : "") type
}
function plain(name) { return name in words_of_language ? "@" name : name }
function escaped(text) {
    gsub(/&/, "\\&amp;", text)
    gsub(/</, "\\&lt;", text)
    gsub(/>/, "\\&gt;", text)
    return text
}

function mark(target, text) { return text == "" ? "" : "[" target text "] " }

# Arrays are handed over by reference, whichever way they go.
function argument(kind, type, name, preset, how) {
    how = kind == "out" ? "out " : kind == "inout" || type ~ /^SAFEARRAY/ ? "ref " : ""
    if (part == "classes" || preset == "") preset = ""
    else preset = " = " (type == "VARIANT_BOOL" ? (preset == 0 ? "false" : "true") : preset)
    return mark("", way_of(type)) how type_of(type) " " plain(name) preset
}

function remark(text) {
    if (part == "library" && text != "") print "        /// <summary>" escaped(text) "</summary>"
}
function identifier(at) { return part == "classes" || identifiers[at] == "" ? "" : "[DispId(" identifiers[at] ")] " }
function missing(at) { return "{ throw Missing(\"" interface_class "." names[at] "\"); }" }
# The way of a property belongs to each of its two halves.
function reader(at) { return part == "classes" ? " get " missing(at) : " " mark("return: ", result_way[at]) "get;" }
function writer(at) { return part == "classes" ? " set " missing(at) : " " mark("param: ", put_way[at]) "set;" }
function property(at, name, halves) {
    print "        " identifier(at) opening() results[at] " " name " {" halves " }"
}
function opening() { return part == "classes" ? "public virtual " : "" }
# The compiler lays a property's reader out before its writer, one behind the other. Where that is not the interface's
# order, each is a method.
function accessor(at) {
    if (kinds[at] == "get") call(at, "get_" names[at], "")
    else call(at, "set_" names[at], mark("", put_way[at]) results[at] " value")
}
function find_apart(at, place) {
    split("", apart)
    for (at = 1; at <= members; ++at) {
        if (kinds[at] == "call") continue
        if (names[at] in place && !(kinds[at] == "put" && place[names[at]] == at - 1)) apart[names[at]]
        place[names[at]] = at
    }
}
function call(at, name, list) {
    print "        " identifier(at) mark("return: ", result_way[at]) opening() \
        (kinds[at] == "put" ? "void" : results[at]) " " name "(" list ")" (part == "classes" ? " " missing(at) : ";")
}

function end_interface(at) {
    if (interface_name == "") return
    if (part == "library") {
        print "\n    /// <summary>" escaped(interface_help) "</summary>"
        print "    [ComImport, Guid(\"" interface_id "\"), InterfaceType(ComInterfaceType.InterfaceIsDual)]"
        print "    public interface " interface_name "\n    {"
    } else {
        print "\n    [ComVisible(true), ClassInterface(ClassInterfaceType.None)]"
        print "    public class " interface_class " : ModelObject, " library_of[interface_name] "." interface_name "\n    {"
    }
    find_apart()
    for (at = 1; at <= members; ++at) {
        remark(helps[at])
        if (kinds[at] == "call") call(at, names[at], lists[at])
        else if (names[at] in apart) accessor(at)
        else if (kinds[at] == "put") property(at, names[at], writer(at))
        else if (names[at] == "Item") property(at, "this[" lists[at] "]", reader(at))
        else if (lists[at] != "") wrong("a property with arguments: " names[at])
        else if (kinds[at + 1] == "put" && names[at + 1] == names[at]) {
            property(at, names[at], reader(at) writer(at + 1))
            ++at
        } else property(at, names[at], reader(at))
    }
    print "    }"
    members = 0
    split("", kinds)
    interface_name = ""
}
function wrong(what) {
    print "csharp.awk: cannot say " what >"/dev/stderr"
    failed = 1
    exit 1
}

function begin_library(name, text) {
    print "// " text ".\n//\n// What fails is an exception, and what an object of yours throws is told to its caller. Made from " name ".idl."
    print "\nnamespace " name "\n{\n    using System;\n    using System.Runtime.InteropServices;"
}
function end_constants() {
    if (constants > 0) print "    }"
    constants = 0
}

BEGIN {
    FS = "\t"
    split("short short SHORT short long int LONG int float float FLOAT float double double BSTR string VARIANT_BOOL bool " \
        "VARIANT object DATE DateTime IDispatch object IUnknown object", pairs, " ")
    for (at = 1; at in pairs; at += 2) types[pairs[at]] = pairs[at + 1]
    split("BSTR BStr VARIANT_BOOL VariantBool VARIANT Struct IDispatch IDispatch IUnknown IUnknown", pairs, " ")
    for (at = 1; at in pairs; at += 2) ways[pairs[at]] = pairs[at + 1]
    split("LONG VT_I4 SHORT VT_I2 BSTR VT_BSTR VARIANT VT_VARIANT", pairs, " ")
    for (at = 1; at in pairs; at += 2) variants[pairs[at]] = pairs[at + 1]
    split("base bool checked decimal default event fixed in int is lock long new object operator out params ref short " \
        "string this", pairs, " ")
    for (at in pairs) words_of_language[pairs[at]]
}

$1 == "library" { library = $2 }
$1 == "interface" { library_of[$2] = library }
pass == 1 { next }
$1 == "library" {
    if (part == "library") begin_library($2, $4)
}
$1 == "constant" && part == "library" {
    if (++constants == 1) print "\n    public static class Constants\n    {"
    print "        public const int " $2 " = unchecked((int)" $3 ");"
}
$1 == "interface" {
    end_constants()
    end_interface()
    interface_name = interface_class = $2
    sub(/^_|^I/, "", interface_class)
    interface_id = $3
    interface_help = $4
}
$1 == "member" {
    kinds[++members] = $2
    names[members] = $3
    helps[members] = $4
    identifiers[members] = $5
    lists[members] = result_way[members] = put_way[members] = ""
    results[members] = "void"
}
$1 == "argument" && $2 == "result" {
    results[members] = type_of($3)
    result_way[members] = way_of($3)
}
$1 == "argument" && $2 != "result" && kinds[members] == "put" {
    results[members] = type_of($3)
    put_way[members] = way_of($3)
}
$1 == "argument" && $2 != "result" && kinds[members] != "put" {
    lists[members] = lists[members] (lists[members] == "" ? "" : ", ") argument($2, $3, $4, $5)
}
$1 == "class" || $1 == "events" {
    end_constants()
    end_interface()
}
$1 == "class" && part == "library" {
    print "\n    /// <summary>Its objects are a " $4 ": cast them.</summary>"
    print "    [ComImport, Guid(\"" $3 "\")]\n    public class " $2 " { }"
}

END {
    if (failed) exit 1
    end_constants()
    end_interface()
    if (part == "library") print "}"
}
