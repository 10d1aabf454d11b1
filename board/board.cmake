add_library(marivale_board STATIC board_design.cpp board_keys.cpp game_board.cpp)
target_link_libraries(marivale_board PUBLIC
    marivale_board_logic marivale_media marivale_bonus marivale_help marivale_advisor
    marivale_stats_window Qt6::Widgets)
