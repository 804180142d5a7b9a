# The Qt half: the map, the controllers (which need the map), the kit and the layouts, and the
# application that joins them.

set(WAYLOOM_QML_OUTPUT "${CMAKE_BINARY_DIR}/qml")

function(wayloom_qml_module target uri)
  string(REPLACE "." "/" path ${uri})
  qt_add_qml_module(${target} URI ${uri} VERSION 1.0 STATIC
    DEPENDENCIES QtQuick
    OUTPUT_DIRECTORY "${WAYLOOM_QML_OUTPUT}/${path}" RESOURCE_PREFIX /qt/qml ${ARGN})
  target_link_libraries(${target} PUBLIC Qt6::Quick)
  target_compile_definitions(${target} PUBLIC QT_NO_KEYWORDS)
endfunction()

wayloom_qml_module(wayloom_map Wayloom.Map)
target_link_libraries(wayloom_map PRIVATE wayloom_options PUBLIC wayloom_regions)
target_include_directories(wayloom_map PRIVATE "${CMAKE_SOURCE_DIR}/src/map")
target_precompile_headers(wayloom_map PRIVATE <QtCore/QTimer> <QtGui/QGuiApplication>
  <QtQml/QQmlEngine> <QtQuick/QQuickItem> <QtQuick/QQuickWindow> <algorithm> <chrono> <cmath>
  <filesystem> <functional> <map> <memory> <optional> <string> <string_view> <vector>)

wayloom_qml_module(wayloom_screens Wayloom.Screens)
target_link_libraries(wayloom_screens PRIVATE wayloom_options PUBLIC wayloom_map wayloom_roads Qt6::Positioning)
target_precompile_headers(wayloom_screens REUSE_FROM wayloom_map)

# Layouts and kit: QML only. Each folder adds its own files with wayloom_add_layout.
set_property(GLOBAL PROPERTY WAYLOOM_LAYOUTS "")
set_property(GLOBAL PROPERTY WAYLOOM_KIT "")
function(wayloom_add_qml list)
  foreach(file IN LISTS ARGN)
    set(path "${CMAKE_CURRENT_SOURCE_DIR}/${file}")
    set_source_files_properties("${path}" TARGET_DIRECTORY wayloom_screens
      PROPERTIES QT_RESOURCE_ALIAS "${file}")
    set_property(GLOBAL APPEND PROPERTY ${list} "${path}")
  endforeach()
endfunction()
macro(wayloom_add_layout)
  wayloom_add_qml(WAYLOOM_LAYOUTS ${ARGN})
endmacro()
macro(wayloom_add_kit)
  wayloom_add_qml(WAYLOOM_KIT ${ARGN})
endmacro()

function(wayloom_set_singleton file)
  set_source_files_properties("${CMAKE_CURRENT_SOURCE_DIR}/${file}"
    TARGET_DIRECTORY wayloom_screens PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
endfunction()

function(wayloom_finish_screen_targets)
  get_property(kit GLOBAL PROPERTY WAYLOOM_KIT)
  get_property(layouts GLOBAL PROPERTY WAYLOOM_LAYOUTS)
  wayloom_qml_module(wayloom_kit Wayloom.Kit QML_FILES ${kit})
  file(GLOB icons CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/resources/icons/*.svg")
  qt_add_resources(wayloom_kit icons PREFIX /icons BASE "${CMAKE_SOURCE_DIR}/resources/icons"
    FILES ${icons})
  wayloom_qml_module(wayloom_layouts Wayloom.Layouts QML_FILES ${layouts})
  # Small sources that Qt writes, each with all of its engine's headers.
  set_target_properties(wayloom_kit wayloom_layouts PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 0)
  target_link_libraries(wayloom PRIVATE wayloom_screens wayloom_mapplugin wayloom_screensplugin
    wayloom_kitplugin wayloom_layoutsplugin)
endfunction()
