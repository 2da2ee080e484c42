# What Debian wants in /usr/share/doc/tarnic-pro and /usr/share/man: the copyright file (made from
# LICENSE, so the licence is written once), the changelog and the manual page, the last two
# compressed as dpkg tools do (gzip -9n: no name or time stamp, so the package is reproducible).
find_program(TARNIC_GZIP gzip REQUIRED)

# LICENSE: its "Copyright (c) ..." line becomes the Copyright field, the rest the licence text,
# indented one blank with "." for empty lines as the machine-readable copyright format asks.
file(STRINGS ${PROJECT_SOURCE_DIR}/LICENSE license_lines)
set(TARNIC_COPYRIGHT "")
set(TARNIC_LICENSE_BODY "")
foreach(line IN LISTS license_lines)
    if(line MATCHES "^MIT License$")
        continue()
    elseif(line MATCHES "^Copyright \\(c\\) (.*)$")
        set(TARNIC_COPYRIGHT "${CMAKE_MATCH_1}")
    elseif(line STREQUAL "")
        if(NOT TARNIC_LICENSE_BODY STREQUAL "")
            string(APPEND TARNIC_LICENSE_BODY " .\n")
        endif()
    else()
        string(APPEND TARNIC_LICENSE_BODY " ${line}\n")
    endif()
endforeach()
string(REGEX REPLACE "^ \\.\n" "" TARNIC_LICENSE_BODY "${TARNIC_LICENSE_BODY}")
string(REGEX REPLACE "\n$" "" TARNIC_LICENSE_BODY "${TARNIC_LICENSE_BODY}")
if(TARNIC_COPYRIGHT STREQUAL "")
    message(FATAL_ERROR "LICENSE has no 'Copyright (c) ...' line")
endif()

set(doc_dir ${CMAKE_INSTALL_DATAROOTDIR}/doc/tarnic-pro)
set(out ${CMAKE_CURRENT_BINARY_DIR}/debian)
configure_file(debian/copyright.in ${out}/copyright @ONLY)
configure_file(debian/changelog.in ${out}/changelog @ONLY)
configure_file(man/tarnic-pro.1 ${out}/tarnic-pro.1 @ONLY)

foreach(name changelog tarnic-pro.1)
    add_custom_command(OUTPUT ${out}/${name}.gz
                       COMMAND ${TARNIC_GZIP} -9nc ${out}/${name} > ${out}/${name}.gz
                       DEPENDS ${out}/${name}
                       COMMENT "Compressing ${name}")
endforeach()
add_custom_target(tarnic-docs ALL DEPENDS ${out}/changelog.gz ${out}/tarnic-pro.1.gz)

install(FILES ${out}/copyright ${out}/changelog.gz DESTINATION ${doc_dir})
install(FILES ${out}/tarnic-pro.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
