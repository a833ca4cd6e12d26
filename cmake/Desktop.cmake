# The window: the room desktop/, the program on top of all rooms, and its bundle.
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets LinguistTools)
pkg_check_modules(libpng REQUIRED IMPORTED_TARGET libpng)

# The dynamic linker looks for each symbol of each library in these in their order: first those in
# which it finds most of them: Core before Widgets, which CMake would put in front, and the compiler's
# before the small ones of the core.
add_room(desktop PUBLIC $<TARGET_LINKER_FILE:Qt6::Core> $<TARGET_LINKER_FILE:Qt6::Gui> Qt6::Widgets
         ${CMAKE_CXX_IMPLICIT_LINK_LIBRARIES}
         checks editor app volumes document platform PRIVATE PkgConfig::libpng)
set_target_properties(desktop PROPERTIES AUTOMOC ON)

set(bundle ${CMAKE_BINARY_DIR}/QuillonSettings.app)
set(contents ${bundle}/Contents)
file(GLOB sources CONFIGURE_DEPENDS program/*.cpp)
add_executable(quillon-settings ${sources})
target_link_libraries(quillon-settings PRIVATE desktop)
target_compile_definitions(quillon-settings PRIVATE QUILLON_VERSION="${PROJECT_VERSION}")
set_target_properties(quillon-settings PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${contents}/MacOS)

configure_file(resources/Info.plist.in ${contents}/Info.plist @ONLY)
# Copied by name and only when they changed: the program keeps its own settings among them.
set(resources Prefs.plist HappyMac.png HappyMac@2x.png)
foreach(size 16 32 64 128)
  list(APPEND resources icons/quillon-settings-${size}.png)
endforeach()
foreach(resource ${resources})
  add_custom_command(
    OUTPUT ${contents}/Resources/${resource}
    COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_SOURCE_DIR}/resources/${resource}
            ${contents}/Resources/${resource}
    DEPENDS resources/${resource})
  list(APPEND copies ${contents}/Resources/${resource})
endforeach()
# Texts in other languages: scripts/translate.sh brings them up to date with the code.
file(GLOB translations CONFIGURE_DEPENDS resources/translations/*.ts)
set_source_files_properties(${translations} PROPERTIES OUTPUT_LOCATION ${contents}/Resources)
qt_add_lrelease(quillon-settings TS_FILES ${translations} QM_FILES_OUTPUT_VARIABLE languages)
add_custom_target(bundle ALL DEPENDS ${copies})
add_dependencies(quillon-settings bundle)
