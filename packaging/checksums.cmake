# Writes the SHA-256 of each package that CPack has made beside it, in the form that `sha256sum --check` reads.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    cmake_path(GET package FILENAME name)
    file(SHA256 ${package} checksum)
    file(WRITE ${CPACK_PACKAGE_DIRECTORY}/${name}.sha256 "${checksum}  ${name}\n")
endforeach()
