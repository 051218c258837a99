# The classes of brxModel.h, one for each interface of the headers: every member answers E_NOTIMPL.
#
#   awk -f model.awk HEADER.h..

function text_of_argument(line, text) {
    text = line
    sub(/^ +/, "", text)
    sub(/,$|\) = 0;$/, "", text)
    sub(/ = [^ ]*$/, "", text) # its default
    sub(/[A-Za-z0-9_]+$/, "", text) # its name
    sub(/ +$/, "", text)
    return text
}

/^_[A-Za-z]+ : public IDispatch$/ {
    name = $1
    printf "\nclass %s : public Object<%s> {\npublic:\n", substr(name, 2), name
    inside = 1
    next
}
inside && /virtual HRESULT STDMETHODCALLTYPE/ {
    member = $4
    sub(/\($/, "", member)
    arguments = ""
    next
}
inside && member != "" && /[A-Za-z]/ && !/^ *\) = 0;/ {
    arguments = arguments (arguments == "" ? "" : ", ") text_of_argument($0)
}
inside && member != "" && /\) = 0;$/ {
    printf "    HRESULT STDMETHODCALLTYPE %s(%s) override { return E_NOTIMPL; }\n", member, arguments
    member = ""
}
inside && /^};/ { print "};"; inside = 0 }
