# SPDX-License-Identifier: MIT
# Writes a source that carries the page's files inside the program: CALTOFAL_PAGE_SOURCE. Each file below page/ is
# served under its relative path, index.html also at "/", and Chart.js as "/chart.js".
find_file(CALTOFAL_CHART_JS chart.min.js PATHS /usr/share/javascript/chart.js NO_DEFAULT_PATH REQUIRED
          DOC "Chart.js as one minified script")
file(GLOB_RECURSE page_files CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR}/page
     page/*.html page/*.css page/*.js page/*.svg)
list(SORT page_files)

set(page_blocks "")
set(page_rows "")
set(page_sources "")
function(caltofal_embed path source)
  string(MAKE_C_IDENTIFIER "caltofal_page_${path}" symbol)
  set(page_blocks "${page_blocks}CALTOFAL_FILE(${symbol}, \"${source}\")\n" PARENT_SCOPE)
  set(page_rows "${page_rows}    CALTOFAL_ROW(\"/${path}\", ${symbol}),\n" PARENT_SCOPE)
  set(page_sources ${page_sources} ${source} PARENT_SCOPE)
endfunction()
foreach(page_file IN LISTS page_files)
  caltofal_embed(${page_file} ${CMAKE_CURRENT_SOURCE_DIR}/page/${page_file})
endforeach()
caltofal_embed(chart.js ${CALTOFAL_CHART_JS})

set(CALTOFAL_PAGE_SOURCE ${CMAKE_CURRENT_BINARY_DIR}/page_files.cpp)
configure_file(page_files.cpp.in ${CALTOFAL_PAGE_SOURCE} @ONLY)
# By itself: compiled with others, what it depends on would be forgotten.
set_source_files_properties(${CALTOFAL_PAGE_SOURCE} PROPERTIES OBJECT_DEPENDS "${page_sources}"
                                                               SKIP_UNITY_BUILD_INCLUSION ON)
