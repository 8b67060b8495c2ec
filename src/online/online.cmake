# The fetch cycle and the currency tools: logic in zafro_core, windows in zafro_ui.
target_sources(zafro_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/xml_document.cpp
                                  ${CMAKE_CURRENT_LIST_DIR}/fetch_cycle.cpp
                                  ${CMAKE_CURRENT_LIST_DIR}/divisas.cpp
                                  ${CMAKE_CURRENT_LIST_DIR}/rates_feed.cpp
                                  ${CMAKE_CURRENT_LIST_DIR}/news.cpp)
target_sources(zafro_ui PRIVATE ${CMAKE_CURRENT_LIST_DIR}/online_forms.cpp
                                ${CMAKE_CURRENT_LIST_DIR}/divisas_window.cpp
                                ${CMAKE_CURRENT_LIST_DIR}/divisasact_window.cpp
                                ${CMAKE_CURRENT_LIST_DIR}/divisasactualizando_window.cpp
                                ${CMAKE_CURRENT_LIST_DIR}/news_panel.cpp)

# zafro-refresh-rates: the maker's server side of the rates (scripts/refresh-rates).
add_executable(zafro-refresh-rates ${CMAKE_CURRENT_LIST_DIR}/zafro_refresh_rates_main.cpp)
target_link_libraries(zafro-refresh-rates PRIVATE zafro_core)
set_target_properties(zafro-refresh-rates PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
