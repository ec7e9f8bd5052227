# The package for Debian: cpack -G DEB in the build folder.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME veilaway)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "Nimbra developers <nimbra@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "take the haze out of photographs")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"What is far away in an outdoor photograph lies under a veil of lit air.
veilaway estimates for each pixel how much air lies over it and removes
that share, at a strength that you choose, from the command line or in a
window with a live preview. Format, depth, colour profile, EXIF, IPTC and
XMP of the photograph stay.
.
The engine is a Qt 5 plug-in, Nimbra. What another program needs in order
to drive it is in the package too.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_SOURCE_DIR}/packaging/debian.cmake")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
# Libraries are found in the files. Of what those depend on, one of several packages would do for Debian's own; the BLAS is taken by
# its path.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libopenblas0-serial, hicolor-icon-theme")
# Letters for the languages of the window that the usual fonts lack.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-droid-fallback | fonts-noto-cjk")

include(CPack)
