# Icon, manifest and version information of the Windows executable. Call after project() has a resource compiler.
function(tessary_add_windows_resources target)
  file(READ ${PROJECT_SOURCE_DIR}/web/package.json package)
  string(JSON TESSARY_NAME GET ${package} name)
  string(JSON TESSARY_DISPLAY_NAME GET ${package} displayName)
  string(JSON TESSARY_VERSION GET ${package} version)
  string(REPLACE "." "," TESSARY_VERSION_NUMBERS ${TESSARY_VERSION})

  set(TESSARY_ICON ${PROJECT_BINARY_DIR}/generated/tessary.ico)
  set(drawing ${PROJECT_SOURCE_DIR}/resources/icon.svg)
  set(generator ${PROJECT_SOURCE_DIR}/resources/windows_icon.mjs)
  add_custom_command(OUTPUT ${TESSARY_ICON}
    COMMAND ${NODE} ${generator} ${drawing} ${TESSARY_ICON}
    DEPENDS ${generator} ${drawing} ${PROJECT_SOURCE_DIR}/web/build/icons.ts ${PROJECT_SOURCE_DIR}/web/build/ico.ts
      ${PROJECT_SOURCE_DIR}/web/build/palette.ts
    COMMENT "Drawing the executable's icon"
    VERBATIM)

  set(resources ${PROJECT_BINARY_DIR}/generated/tessary.rc)
  configure_file(${PROJECT_SOURCE_DIR}/resources/tessary.rc.in ${resources} @ONLY)
  set_source_files_properties(${resources} PROPERTIES OBJECT_DEPENDS "${TESSARY_ICON};${PROJECT_SOURCE_DIR}/resources/tessary.manifest")
  target_sources(${target} PRIVATE ${resources})
endfunction()
