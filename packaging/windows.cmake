# Calquo for Windows: a zip and a setup.
find_program(MAKENSIS makensis REQUIRED DOC "Makes installers; Debian's package nsis")
string(TOLOWER ${PROJECT_NAME}-${PROJECT_VERSION}-${CALQUO_WINDOWS} package_name)

set(processors_win64 "Windows 7 or later, of 64 bits, on x86-64 processors")
set(processors_win32 "Windows 7 or later, of 32 or 64 bits, on x86 and x86-64 processors")
set(processors "${processors_${CALQUO_WINDOWS}}")
# What Notepad shows, with the ends of lines that the older ones need.
set(texts ${CMAKE_CURRENT_BINARY_DIR}/texts)
configure_file(README.txt ${texts}/README.txt @ONLY NEWLINE_STYLE CRLF)
configure_file(THIRD_PARTY.txt ${texts}/THIRD_PARTY.txt @ONLY NEWLINE_STYLE CRLF)
configure_file(${PROJECT_SOURCE_DIR}/LICENSE ${texts}/LICENSE.txt @ONLY NEWLINE_STYLE CRLF)

# The installer's own width: a 64-bit Windows without its 32-bit half could not start a 32-bit one.
set(installer_target_win64 amd64-unicode)
set(installer_target_win32 x86-unicode)

set(make_setup ${MAKENSIS} -V2 -DNAME=${PROJECT_NAME} -DSITE=${CALQUO_SITE} -DFILES=${packages}/${package_name}
    -DTARGET=${installer_target_${CALQUO_WINDOWS}} -DICON=${PROJECT_SOURCE_DIR}/resources/calquo.ico)
set(setup_script ${CMAKE_CURRENT_SOURCE_DIR}/installer.nsi)
add_custom_target(package
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/pack_windows ${packages} ${package_name} ${CMAKE_STRIP}
            ${CALQUO_HELP_PAGES}/site $<TARGET_FILE:Calquo> $<TARGET_FILE:calq> ${CMAKE_BINARY_DIR}/Calquo2.chm ${texts}/README.txt ${texts}/LICENSE.txt ${texts}/THIRD_PARTY.txt
    COMMAND ${make_setup} -DVERSION=${PROJECT_VERSION} -DSERIES=${CALQUO_SERIES} -DOUTPUT=${packages}/${package_name}-setup.exe ${setup_script}
    COMMAND ${CMAKE_COMMAND} -E chdir ${packages} ${CMAKE_COMMAND} -E sha256sum ${package_name}.zip
            ${package_name}-setup.exe > ${packages}/${package_name}.sha256
    COMMENT "Packing ${packages}"
    VERBATIM)
add_dependencies(package Calquo calq help_file)

# The same programs as a later version, for the tests of the setup.
add_custom_target(later_setup
    COMMAND ${make_setup} -DVERSION=99.0.0 -DSERIES=99.0 -DOUTPUT=${CMAKE_BINARY_DIR}/later-setup.exe ${setup_script}
    VERBATIM)
add_dependencies(later_setup package)

# Packs; installs, repairs, upgrades and uninstalls, silently and by hand.
add_test(NAME installer
    COMMAND ${PROJECT_SOURCE_DIR}/tests/windows/installer ${CALQUO_WINDOWS} ${CMAKE_BINARY_DIR})
set_tests_properties(installer PROPERTIES LABELS windows TIMEOUT 300 RUN_SERIAL ON)
