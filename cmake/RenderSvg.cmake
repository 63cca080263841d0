# Renders SVG drawings to PNG files at build time (rsvg-convert) and compiles
# them into TARGET as Qt resources :/PREFIX/<name>-<size>.png, so that they
# show without Qt's SVG plugin.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)

function(slicewright_render_svgs target prefix)
    cmake_parse_arguments(ARG "" "" "NAMES;SIZES" ${ARGN})
    set(pngs)
    foreach(name IN LISTS ARG_NAMES)
        set(svg ${CMAKE_CURRENT_SOURCE_DIR}/${name}.svg)
        foreach(size IN LISTS ARG_SIZES)
            set(png ${CMAKE_CURRENT_BINARY_DIR}/${name}-${size}.png)
            add_custom_command(OUTPUT ${png}
                COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --output ${png} ${svg}
                DEPENDS ${svg}
                COMMENT "Rendering ${name} at ${size} px")
            list(APPEND pngs ${png})
        endforeach()
    endforeach()
    add_library(${target} STATIC)
    qt_add_resources(${target} ${target}
        PREFIX /${prefix}
        BASE ${CMAKE_CURRENT_BINARY_DIR}
        FILES ${pngs})
    target_link_libraries(${target} PUBLIC Qt6::Core)
endfunction()
