# The fetch cycle and the currency tools: logic in zafro_core, windows in zafro_ui.
target_sources(zafro_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/xml_document.cpp
                                  ${CMAKE_CURRENT_LIST_DIR}/fetch_cycle.cpp
                                  ${CMAKE_CURRENT_LIST_DIR}/divisas.cpp)
target_sources(zafro_ui PRIVATE ${CMAKE_CURRENT_LIST_DIR}/online_forms.cpp
                                ${CMAKE_CURRENT_LIST_DIR}/divisas_window.cpp
                                ${CMAKE_CURRENT_LIST_DIR}/divisasact_window.cpp
                                ${CMAKE_CURRENT_LIST_DIR}/divisasactualizando_window.cpp)
