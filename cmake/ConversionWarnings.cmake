# slicewright_conversion_warnings(TARGET...): every narrowing or change of sign
# in the target's own sources must be written out. Pixels, twips, 16-bit
# state fields, byte offsets and sizes meet in the same expressions, and an
# implicit conversion between them is where a value is silently cut: a cast
# says that its range is known, a checked narrowing that it is not.
#
# Carried by every target of our own program code: the core's subsystems
# (slicewright_core_*), the window layer (slicewright_qt), its picture decoder
# (slicewright_qtimage), the program (slicewright), the command-line cutter
# (slicewright_cut, slicewright-cut) and the scenario runner with its scripted
# ports (slicewright_scripted, slicewright-scenario). Not by the tests, the
# benchmarks, the fuzz targets and the generated resource libraries.
function(slicewright_conversion_warnings)
    foreach(target IN LISTS ARGN)
        target_compile_options(${target} PRIVATE -Wconversion -Wsign-conversion)
    endforeach()
endfunction()
