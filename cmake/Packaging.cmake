# The package for Debian: cpack -G DEB in the build folder.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME veilaway)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "Nimbra developers <nimbra@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "take the haze out of photographs")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"In outdoor photographs a veil of lit air covers whatever is far away.
veilaway estimates this haze for each pixel and removes it, at a strength
that you choose, from the command line or in a window with a live preview.
Format, bit depth, colour profile, EXIF, IPTC and XMP are kept.
.
The engine is a Qt 5 plug-in, Nimbra. The package includes what another
program needs to use it.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_SOURCE_DIR}/packaging/debian.cmake")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# What is built on one release needs that release's libraries, so its name is in the version.
cmake_host_system_information(RESULT distribution QUERY DISTRIB_ID)
cmake_host_system_information(RESULT distribution_version QUERY DISTRIB_VERSION_ID)
string(REPLACE debian deb distribution "${distribution}")
set(CPACK_DEBIAN_PACKAGE_VERSION "${PROJECT_VERSION}~${distribution}${distribution_version}")
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
# The tools find the libraries that the files need. The BLAS is named here because it is loaded by its path, and any of several
# packages would satisfy Debian's own dependency.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libopenblas0-serial, hicolor-icon-theme")
# Glyphs of the window's languages that the usual fonts lack; libheif's decoders, where they are packages of their own.
string(CONCAT CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-droid-fallback | fonts-noto-cjk, "
    "libheif-plugin-libde265 | libheif1 (<< 1.16), libheif-plugin-dav1d | libheif1 (<< 1.16)")

include(CPack)
