# Finds XmlRpc++ and defines the target XmlRpcpp::XmlRpcpp.
# The package's own CMake and pkg-config files pull in its authors' build system; only the library itself is needed here.
find_path(XmlRpcpp_INCLUDE_DIR xmlrpcpp/XmlRpcValue.h)
find_library(XmlRpcpp_LIBRARY xmlrpcpp)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(XmlRpcpp REQUIRED_VARS XmlRpcpp_LIBRARY XmlRpcpp_INCLUDE_DIR)

if(XmlRpcpp_FOUND AND NOT TARGET XmlRpcpp::XmlRpcpp)
    add_library(XmlRpcpp::XmlRpcpp UNKNOWN IMPORTED)
    set_target_properties(XmlRpcpp::XmlRpcpp PROPERTIES
        IMPORTED_LOCATION "${XmlRpcpp_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${XmlRpcpp_INCLUDE_DIR}")
endif()
mark_as_advanced(XmlRpcpp_INCLUDE_DIR XmlRpcpp_LIBRARY)
