# Makes one program of the samples of a guide: a function for each section, of its blocks of cpp in
# their order. With -v expected=1 it prints instead what the blocks of text say they print.
BEGIN {
    if (!expected) print "#include \"tests/guide/Preamble.h\"\n"
}
/^## / { close_section() }
/^```/ {
    language = language ? "" : substr($0, 4)
    if (language == "cpp" && !expected && !is_open) {
        printf "static void section%d()\n{\n", ++sections
        is_open = 1
    }
    if (language == "cpp" && !expected) printf "#line %d \"%s\"\n", NR + 1, FILENAME
    next
}
language == (expected ? "text" : "cpp") { print }
END {
    close_section()
    if (expected) exit
    print "int main()\n{\n    Kestrane::initialize();"
    for (i = 1; i <= sections; ++i) printf "    section%d();\n", i
    print "    Kestrane::deinitialize();\n}"
}
function close_section() {
    if (is_open) print "}\n"
    is_open = 0
}
