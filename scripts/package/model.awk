# brxModel.h with its classes, one for each interface of the headers: every member answers E_NOTIMPL.
#
#   awk -f model.awk packaging/brxModel.h HEADER.h.. >brxModel.h

# Inside the classes' namespace an interface may be hidden by a class of its name.
function type_of(line, type, name) {
    type = line
    sub(/^ +/, "", type)
    sub(/,$|\) = 0;$/, "", type)
    sub(/ = [^ ]*$/, "", type) # its default
    sub(/[A-Za-z0-9_]+$/, "", type) # its name
    sub(/ +$/, "", type)
    gsub(/ \*/, "*", type)
    name = type
    sub(/[ *].*/, "", name)
    return (name in interfaces ? "::" : "") type
}
function add(line) { classes = classes line "\n" }

{ sub(/\r$/, "") }
FNR == 1 { ++file }
file == 1 { frame[++lines] = $0; next }

/^typedef interface / { interfaces[$3] }
# Those that an owner of events calls have no members.
/^[A-Za-z_]+ : public IDispatch$/ && !/^DI/ {
    interface = $1
    class = interface
    sub(/^_/, "", class)
    add("\nclass " class " : public Object<::" interface "> {\npublic:")
    member = ""
}
interface != "" && /virtual HRESULT STDMETHODCALLTYPE/ {
    member = $4
    sub(/\($/, "", member)
    arguments = ""
    next
}
member != "" && /[A-Za-z]/ && !/^ *\) = 0;/ { arguments = arguments (arguments == "" ? "" : ", ") type_of($0) }
member != "" && /\) = 0;$/ {
    add("    HRESULT STDMETHODCALLTYPE " member "(" arguments ") override {")
    add("        return missing(L\"" class "::" member " is not implemented.\");\n    }")
    member = ""
}
interface != "" && /^};/ {
    add("};")
    interface = ""
}

END {
    for (line = 1; line <= lines; ++line)
        if (frame[line] ~ /^\/\/ @CLASSES@/) printf "%s", classes
        else print frame[line]
}
