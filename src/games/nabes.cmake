# La conquista de Jupiter: logic in zafro_core, windows and pictures in zafro_ui.
target_sources(zafro_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/nabes_state.cpp)
target_sources(zafro_ui PRIVATE ${CMAKE_CURRENT_LIST_DIR}/nabes_window.cpp
                                ${CMAKE_CURRENT_LIST_DIR}/nabesfin_window.cpp)
# Drawn as SVG beside them; assets/games/nabes/render.py makes these PNGs.
set(_nabes_pictures
    nave1 boss shield flama1 flama2 a b explosion explosion1 explosion2 explosion3
    estela1 estela2 estela3 rayo danger asteroide1 asteroide2 estrellas ganaste perdiste)
list(TRANSFORM _nabes_pictures PREPEND ${PROJECT_SOURCE_DIR}/assets/games/nabes/)
list(TRANSFORM _nabes_pictures APPEND .png)
qt_add_resources(zafro_ui "nabes_pictures" PREFIX "/" BASE ${PROJECT_SOURCE_DIR}/assets
                 FILES ${_nabes_pictures})
