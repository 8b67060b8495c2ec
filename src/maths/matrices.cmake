# matrices: logic in zafro_core, window in zafro_ui
