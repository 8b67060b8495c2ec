list(APPEND ONLINE_TEST_SOURCES ${CMAKE_CURRENT_LIST_DIR}/fetch_cycle_test.cpp
     ${CMAKE_CURRENT_LIST_DIR}/divisas_test.cpp)
set_property(SOURCE ${CMAKE_CURRENT_LIST_DIR}/fetch_cycle_test.cpp APPEND PROPERTY
             COMPILE_DEFINITIONS ZAFRO_FEEDS_DIR="${CMAKE_CURRENT_LIST_DIR}/feeds")

# The server-side script on good and bad feeds, as the operator's timer runs it.
add_test(NAME refresh_rates_script
         COMMAND bash ${CMAKE_CURRENT_LIST_DIR}/refresh_rates_test.sh
                 ${PROJECT_SOURCE_DIR}/scripts/refresh-rates $<TARGET_FILE:zafro-refresh-rates>
                 ${CMAKE_CURRENT_LIST_DIR}/feeds)
