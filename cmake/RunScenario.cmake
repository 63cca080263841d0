# Runs one scenario script and compares its transcript with the expected one.
# -DRUNNER=... -DSCRIPT=... -DEXPECTED=... -DWORKDIR=... -DDATA=...
# The script runs in a fresh WORKDIR in which "data" is the test data folder,
# so that scripts name files by relative paths and transcripts are the same
# on every machine.
file(REMOVE_RECURSE "${WORKDIR}")
file(MAKE_DIRECTORY "${WORKDIR}")
file(CREATE_LINK "${DATA}" "${WORKDIR}/data" SYMBOLIC)
execute_process(
    COMMAND "${RUNNER}" "${SCRIPT}"
    WORKING_DIRECTORY "${WORKDIR}"
    OUTPUT_VARIABLE transcript
    ERROR_VARIABLE errors
    RESULT_VARIABLE status)
get_filename_component(name "${SCRIPT}" NAME_WE)
set(actual "${WORKDIR}/${name}.actual")
file(WRITE "${actual}" "${transcript}")
if(NOT status EQUAL 0)
    message(FATAL_ERROR "scenario ${name} stopped (${status}): ${errors}")
endif()
execute_process(COMMAND diff -u "${EXPECTED}" "${actual}" OUTPUT_VARIABLE difference RESULT_VARIABLE differs)
if(NOT differs EQUAL 0)
    message(FATAL_ERROR "scenario ${name}: the transcript differs from ${EXPECTED}\n${difference}")
endif()
