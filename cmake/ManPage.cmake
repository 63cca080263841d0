# slicewright_man_page(TARGET SUMMARY): the program's manual page, made by
# help2man from its own --help and --version so that it never tells another
# story than the program, compressed as Debian wants it (gzip -9n, no time
# stamp inside) and installed into man1.
find_program(HELP2MAN help2man REQUIRED)

function(slicewright_man_page target summary)
    set(page ${CMAKE_CURRENT_BINARY_DIR}/${target}.1)
    add_custom_command(OUTPUT ${page}.gz
        COMMAND ${HELP2MAN} --no-info --section=1 --name=${summary} --output=${page}
            $<TARGET_FILE:${target}>
        COMMAND gzip -9 -n -f ${page}
        DEPENDS ${target}
        COMMENT "Making the manual page of ${target}"
        VERBATIM)
    add_custom_target(${target}-man ALL DEPENDS ${page}.gz)
    install(FILES ${page}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endfunction()
