# The rooms that calculate, for other programs: find_package(Veyruna) and the target Veyruna::documents, or any
# other of them. In no package; `cmake --install FOLDER --component Development` puts them anywhere.
include(CMakePackageConfigHelpers)

set(rooms astro reports charts almanac words documents)
set(targets ${rooms})
list(TRANSFORM targets PREPEND veyruna_)
foreach(room IN LISTS rooms)
  set_target_properties(veyruna_${room} PROPERTIES EXPORT_NAME ${room})
  install(
    DIRECTORY ${PROJECT_SOURCE_DIR}/${room}
    DESTINATION include/veyruna
    COMPONENT Development
    FILES_MATCHING
    PATTERN "*.h")
endforeach()
install(
  TARGETS ${targets}
  EXPORT VeyrunaTargets
  ARCHIVE COMPONENT Development)

set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/Veyruna)
install(
  EXPORT VeyrunaTargets
  NAMESPACE Veyruna::
  DESTINATION ${folder}
  FILE VeyrunaConfig.cmake
  COMPONENT Development)
# Before 1.0 another minor version may be another house.
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/VeyrunaConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(
  FILES ${CMAKE_CURRENT_BINARY_DIR}/VeyrunaConfigVersion.cmake
  DESTINATION ${folder}
  COMPONENT Development)
