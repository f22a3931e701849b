# calq for this machine: what is installed, and the packages of it.
find_program(HELP2MAN help2man DOC "Makes a manual page of what --help says; Debian's package help2man")
if(HELP2MAN)
    set(manual ${CMAKE_CURRENT_BINARY_DIR}/calq.1)
    add_custom_command(
        OUTPUT ${manual}
        COMMAND ${HELP2MAN} --no-info --version-string=${PROJECT_VERSION} "--name=scientific calculator for the console" --output=${manual}
                --include=${CMAKE_CURRENT_SOURCE_DIR}/calq.h2m $<TARGET_FILE:calq>
        DEPENDS calq ${CMAKE_CURRENT_SOURCE_DIR}/calq.h2m
        COMMENT "Writing the manual page"
        VERBATIM)
    add_custom_target(manual_page ALL DEPENDS ${manual})
elseif(BUILD_TESTING)
    message(FATAL_ERROR "help2man is missing (Debian's package help2man)")
else()
    message(STATUS "help2man is missing (Debian's package help2man): going on without the manual page")
endif()

# What completes names while lines are typed.
set(names ${CMAKE_CURRENT_BINARY_DIR}/names)
add_custom_command(
    OUTPUT ${names}
    COMMAND $<TARGET_FILE:calq> --names | sed "s/[ (].*//" > ${names}
    DEPENDS calq
    COMMENT "Listing the names"
    VERBATIM)
add_custom_target(name_list ALL DEPENDS ${names})

include(GNUInstallDirs)
set(documents ${CMAKE_INSTALL_DATADIR}/doc/calq)
configure_file(README-linux.txt ${CMAKE_CURRENT_BINARY_DIR}/README.txt @ONLY)
install(TARGETS calq)
if(HELP2MAN)
    install(FILES ${manual} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()
install(FILES ${names} DESTINATION ${CMAKE_INSTALL_DATADIR}/calq)
install(FILES calq.bash-completion DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME calq)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/README.txt ${PROJECT_SOURCE_DIR}/LICENSE ${notices} LGPL-2.1.txt
    ${PROJECT_SOURCE_DIR}/CHANGELOG.md DESTINATION ${documents})

add_test(NAME install COMMAND ${PROJECT_SOURCE_DIR}/tests/packaging/install ${CMAKE_BINARY_DIR})
add_test(NAME manifests
    COMMAND ${CMAKE_COMMAND} -DWORK=${CMAKE_BINARY_DIR}/manifests -DSITE=${CALQUO_SITE}
            -P ${PROJECT_SOURCE_DIR}/tests/packaging/check_manifests.cmake)
set_tests_properties(install manifests PROPERTIES LABELS core)

set(CPACK_PACKAGE_NAME calq)
set(CPACK_PACKAGE_VENDOR "the ${PROJECT_NAME} developers")
set(CPACK_PACKAGE_CONTACT "${CPACK_PACKAGE_VENDOR} <packages@${CALQUO_SITE}>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "scientific calculator for the console")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "calq calculates lines given as arguments or read from files: complex numbers of 64 bits'
precision, numbers in bases 2 to 36, statistics, finance, and the conversion of
over a hundred and forty units.")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://${CALQUO_SITE}/")
set(CPACK_DEBIAN_PACKAGE_SECTION math)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
string(TOLOWER calq-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR} CPACK_PACKAGE_FILE_NAME)
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_DIRECTORY ${packages})
set(CPACK_STRIP_FILES ON)
# Not those that the umask of whoever makes the package happens to leave.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/stage.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/checksums.cmake)
include(CPack)
