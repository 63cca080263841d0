# slicewright_conversion_warnings(TARGET...): every narrowing or change of sign
# in the target's own sources must be written out. Pixels, twips, 16-bit
# state fields, byte offsets and sizes meet in the same expressions, and an
# implicit conversion between them is where a value is silently cut: a cast
# says that its range is known, a checked narrowing that it is not.
#
# Carried by the core's subsystems (slicewright_core_*), the command-line
# cutter (slicewright_cut, slicewright-cut) and the scenario runner with its
# scripted ports (slicewright_scripted, slicewright-scenario).
function(slicewright_conversion_warnings)
    foreach(target IN LISTS ARGN)
        target_compile_options(${target} PRIVATE -Wconversion -Wsign-conversion)
    endforeach()
endfunction()
