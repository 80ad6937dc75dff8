# The Firebird client library: target Fbclient::Fbclient (headers of its object interface and libfbclient).
find_path(Fbclient_INCLUDE_DIR firebird/Interface.h)
find_library(Fbclient_LIBRARY fbclient)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Fbclient REQUIRED_VARS Fbclient_LIBRARY Fbclient_INCLUDE_DIR)
if(Fbclient_FOUND AND NOT TARGET Fbclient::Fbclient)
  add_library(Fbclient::Fbclient UNKNOWN IMPORTED)
  set_target_properties(Fbclient::Fbclient PROPERTIES IMPORTED_LOCATION ${Fbclient_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${Fbclient_INCLUDE_DIR})
endif()
