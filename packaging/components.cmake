# Read by CPack before each package: which components it holds.
if(CPACK_GENERATOR STREQUAL "DEB")
    set(components program debian)
else()
    set(components program folder)
endif()

list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build_folder)
set(CPACK_INSTALL_CMAKE_PROJECTS)
foreach(component IN LISTS components)
    list(APPEND CPACK_INSTALL_CMAKE_PROJECTS ${build_folder} KeyFluent ${component} /)
endforeach()
