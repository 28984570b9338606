# Makes one program of the samples on pages and of the examples in headers: a function for each
# section of a page, of its blocks of cpp in their order, and for each example. A statement with
# "// = TEXT" behind it has to be printed as that text. With -v expected=1 it prints instead what the
# blocks of text on the pages say that all blocks print.
BEGIN {
    if (!expected) print "#include \"tests/guide/Preamble.h\"\n"
}
/^## / { close_section() }
/^```/ {
    language = language ? "" : substr($0, 4)
    if (language == "cpp") open_section()
    next
}
$1 == "///" && $2 == "@code" { language = "cpp"; open_section(); next }
$1 == "///" && $2 == "@endcode" { language = ""; close_section(); next }
language == (expected ? "text" : "cpp") { print_line() }
END {
    close_section()
    if (expected) exit
    print "int main()\n{\n    Kestrane::initialize();"
    for (i = 1; i <= sections; ++i) printf "    section%d();\n", i
    print "    Kestrane::deinitialize();\n    return isWrong;\n}"
}
function open_section() {
    if (expected) return
    if (!is_open) printf "static void section%d()\n{\n", ++sections
    is_open = 1
    printf "#line %d \"%s\"\n", FNR + 1, FILENAME
}
function close_section() {
    if (is_open) print "}\n"
    is_open = 0
}
function print_line() {
    sub(/^ *\/\/\/ ?/, "")
    mark = index($0, "// = ")
    if (mark == 0) {
        print
        return
    }
    statement = substr($0, 1, mark - 1)
    sub(/; *$/, "", statement)
    printf "expect(%s, \"%s\", __FILE__, __LINE__);\n", statement, substr($0, mark + 5)
}
