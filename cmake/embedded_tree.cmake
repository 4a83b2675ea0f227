# Turns web/dist and web/package.json into one source unit, anew at each build; the unit is rewritten only when its text
# changes, so a build with nothing new compiles nothing.
set(TESSARY_WEB_DIST ${PROJECT_SOURCE_DIR}/web/dist CACHE PATH "The built page")
find_program(NODE node REQUIRED HINTS ${PROJECT_SOURCE_DIR}/build/tools/node/bin)

set(EMBEDDED_TREE_SOURCE ${PROJECT_BINARY_DIR}/generated/embedded_tree.cpp)
add_custom_target(embedded_tree
  COMMAND ${NODE} ${PROJECT_SOURCE_DIR}/resources/embed.mjs
    --out ${EMBEDDED_TREE_SOURCE} dist=${TESSARY_WEB_DIST} package.json=${PROJECT_SOURCE_DIR}/web/package.json
  BYPRODUCTS ${EMBEDDED_TREE_SOURCE}
  COMMENT "Embedding the page"
  VERBATIM)
