target_sources(zafro_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/settings.cpp
  ${CMAKE_CURRENT_LIST_DIR}/settings_db.cpp)
