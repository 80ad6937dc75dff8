# The CMake package: what `cmake --install` writes, so that a host finds the libraries by find_package(Fichario).
#
#   lib/            the libraries; lib/fichario the validator of state registrations
#   bin/            companion programs
#   include/fichario  the headers, under the folders they have here
#   lib/cmake/Fichario  FicharioConfig.cmake

include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(FICHARIO_HEADERS platform/rtl platform/system platform/data modules utils sql db)
set(FICHARIO_LIBRARIES FicharioCore)
if(FICHARIO_FORMS)
  list(APPEND FICHARIO_HEADERS platform/ui forms)
  list(APPEND FICHARIO_LIBRARIES FicharioForms)
endif()

target_include_directories(fichario_options INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/fichario>)
set_target_properties(fichario_options PROPERTIES EXPORT_NAME options)
install(TARGETS ${FICHARIO_LIBRARIES} fichario_options EXPORT FicharioTargets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})

# The folder that knows the client library stays ours.
foreach(room IN LISTS FICHARIO_HEADERS)
  install(DIRECTORY ${room}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/fichario/${room}
    FILES_MATCHING PATTERN "*.h" PATTERN firebird EXCLUDE)
endforeach()

set(package ${CMAKE_INSTALL_LIBDIR}/cmake/Fichario)
install(EXPORT FicharioTargets NAMESPACE Fichario:: DESTINATION ${package})
configure_package_config_file(cmake/FicharioConfig.cmake.in ${CMAKE_BINARY_DIR}/FicharioConfig.cmake
  INSTALL_DESTINATION ${package})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/FicharioConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/FicharioConfig.cmake ${CMAKE_BINARY_DIR}/FicharioConfigVersion.cmake
  cmake/FindFbclient.cmake DESTINATION ${package})
