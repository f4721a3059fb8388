#!/usr/bin/awk -f
# Doxygen input filter for the installed headers. Our own functions are named
# in UpperCamelCase, so a lowerCamelCase function declared `override` is a
# reimplemented Qt virtual: Qt documents what it is for, and the class comment
# what ours does differently. The filter gives such declarations a one-line
# note instead of leaving them undocumented. Lines are kept one for one, so the
# warnings point at the right lines. One documented above keeps its own.
function flush() {
    if (n == 0) return
    if (buffer ~ /\)[^;{]*override/ && documented == 0)
        sub(/^[ \t]*/, "&/** Reimplemented from Qt. */ ", lines[1])
    for (i = 1; i <= n; i++) print lines[i]
    n = 0; buffer = ""; documented = 0
}
{
    if (n > 0) {
        lines[++n] = $0; buffer = buffer " " $0
        if ($0 ~ /[;{]/) flush()
        next
    }
    if ($0 ~ /^[ \t]+(virtual[ \t]+)?[A-Za-z_][^;{}()]*[ \t*&][a-z][A-Za-z0-9_]*\(/ && $0 !~ /operator/ && $0 !~ /^[ \t]*\/\//) {
        lines[++n] = $0; buffer = $0
        if ($0 ~ /[;{]/) flush()
        next
    }
    print
    documented = ($0 ~ /^[ \t]*\/\/\// || $0 ~ /\*\/[ \t]*$/)
}
END { flush() }
