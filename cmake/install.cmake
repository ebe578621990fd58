# The installed tree:
#
#   bin/tgx                      the tool
#   include/tgx-1/               public headers, with the folders of this repository
#   lib/                         libtgx, libtgxplatform, libtgxplayer, libtgxdevtools
#   lib/cmake/tgx/               find_package(tgx): targets, tgx_embed_scripts
#   lib/pkgconfig/tgx.pc

include(CMakePackageConfigHelpers)

set(tgx_include_dir ${CMAKE_INSTALL_INCLUDEDIR}/tgx-1) # of the interface that version 1 will have
set(tgx_cmake_dir ${CMAKE_INSTALL_LIBDIR}/cmake/tgx)

# The package exports the same names after tgx:: as this build.
set_target_properties(tgxplatform PROPERTIES EXPORT_NAME platform)
set_target_properties(tgxplayer PROPERTIES EXPORT_NAME player)
set_target_properties(tgxdevtools PROPERTIES EXPORT_NAME devtools)
set_target_properties(tgx_tool PROPERTIES EXPORT_NAME tool)

install(TARGETS tgx tgxplatform tgxplayer tgxdevtools tgx_tool EXPORT tgxTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  INCLUDES DESTINATION ${tgx_include_dir})
install(EXPORT tgxTargets NAMESPACE tgx:: DESTINATION ${tgx_cmake_dir})

# A header is public if it exports something or if a public header includes it. All others are private and not
# installed.
file(GLOB_RECURSE headers RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS platform/*.h tgx/*.h player/*.h devtools/*.h)
set(open_headers platform/limits.h tgx/tgx.h)
foreach(header IN LISTS headers)
  file(STRINGS ${header} exports REGEX "(TGX_API|TGX_PLATFORM_API|TGX_PLAYER_API|TGX_DEVTOOLS_API) " LIMIT_COUNT 1)
  if(exports)
    list(APPEND open_headers ${header})
  endif()
endforeach()
set(public_headers "")
while(open_headers)
  list(POP_FRONT open_headers header)
  if(header IN_LIST public_headers)
    continue()
  endif()
  list(APPEND public_headers ${header})
  file(STRINGS ${header} includes REGEX "^#include \"(platform|tgx|player|devtools)/")
  list(TRANSFORM includes REPLACE "^#include \"([^\"]+)\".*" "\\1")
  list(APPEND open_headers ${includes})
endwhile()
foreach(header IN LISTS public_headers)
  get_filename_component(folder ${header} DIRECTORY)
  install(FILES ${header} DESTINATION ${tgx_include_dir}/${folder})
endforeach()

configure_package_config_file(cmake/tgxConfig.cmake.in ${PROJECT_BINARY_DIR}/tgxConfig.cmake
  INSTALL_DESTINATION ${tgx_cmake_dir} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/tgxConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/tgxConfig.cmake ${PROJECT_BINARY_DIR}/tgxConfigVersion.cmake
  cmake/tgx_embed_scripts.cmake cmake/bytes_to_cpp.cmake DESTINATION ${tgx_cmake_dir})

# Relative to the file itself, so that the installed tree can be moved.
file(RELATIVE_PATH tgx_prefix_from_pc
  ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/tgx.pc.in ${PROJECT_BINARY_DIR}/tgx.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/tgx.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
