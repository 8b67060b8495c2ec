# The news ticker: its scroll steps, and the panel on the launcher with the bundled news.
list(APPEND ONLINE_TEST_SOURCES ${CMAKE_CURRENT_LIST_DIR}/news_test.cpp)
set_property(SOURCE ${CMAKE_CURRENT_LIST_DIR}/news_test.cpp APPEND PROPERTY COMPILE_DEFINITIONS
             ZAFRO_NEWS_XML="${PROJECT_SOURCE_DIR}/server/tirsamontes/news/noticias45.xml")
