# Makes tests of the C++ blocks of a document: awk -v output=FOLDER -f blocks.awk DOCUMENT.md
#
# The blocks before the first section stand at the top of FOLDER/blocks.cpp, those of each section
# are one test, in which each `assert` is checked; what they include goes to the top. A block that
# begins with a file's name, as in `// base/decimal.hpp`, becomes that file.

function flush_section() {
    if (section != "") {
        body = body "TEST(" suite ", " name ") {\n" section "}\n\n"
    }
    section = ""
}

FNR == 1 {
    suite = FILENAME
    gsub(/.*\/|\.md$/, "", suite)
}

!inside && /^## / {
    flush_section()
    name = tolower(substr($0, 4))
    gsub(/[^a-z0-9]+/, "_", name)
    next
}

!inside && /^```cpp$/ {
    inside = 1
    file = ""
    block = "#line " FNR + 1 " \"" FILENAME "\"\n"
    first = FNR + 1
    next
}

inside && /^```$/ {
    inside = 0
    if (file == "" && name != "") {
        section = section block
    } else if (file == "") {
        body = body block "\n"
    }
    next
}

inside && FNR == first && /^\/\/ [a-z_\/]+\.hpp$/ {
    file = output "/" $2
}

inside && file != "" {
    print > file
    next
}

inside && /^#include/ {
    includes = includes "#line " FNR " \"" FILENAME "\"\n" $0 "\n"
    block = block "\n"
    next
}

inside {
    block = block $0 "\n"
}

END {
    flush_section()
    printf "%s#include <gtest/gtest.h>\n\n", includes > (output "/blocks.cpp")
    print "#undef assert\n#define assert(...) EXPECT_TRUE((__VA_ARGS__))\n" > (output "/blocks.cpp")
    printf "namespace {\n\n%s} // namespace\n", body > (output "/blocks.cpp")
}
