# The application icon is drawn once, as SVG; the fixed sizes that icon themes look up first are
# rendered from it at build time, so the PNGs can never drift from the drawing.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)

set(TARNIC_ICON_SVG ${CMAKE_CURRENT_LIST_DIR}/icons/${TARNIC_APP_ID}.svg)
set(TARNIC_ICON_SIZES 16 22 24 32 48 64 128 256)
set_property(GLOBAL PROPERTY TARNIC_ICON_SIZES "${TARNIC_ICON_SIZES}")

set(icon_pngs)
foreach(size IN LISTS TARNIC_ICON_SIZES)
    set(dir ${CMAKE_CURRENT_BINARY_DIR}/icons/${size}x${size})
    set(png ${dir}/${TARNIC_APP_ID}.png)
    add_custom_command(
        OUTPUT ${png}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${dir}
        COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --format png --output ${png}
                ${TARNIC_ICON_SVG}
        DEPENDS ${TARNIC_ICON_SVG}
        COMMENT "Rendering the ${size}x${size} application icon"
        VERBATIM)
    list(APPEND icon_pngs ${png})
    install(FILES ${png} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()
add_custom_target(tarnic-icons ALL DEPENDS ${icon_pngs})

install(FILES ${TARNIC_ICON_SVG} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
