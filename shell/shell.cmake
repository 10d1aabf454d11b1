# The data file: plain C++, tested and fuzzed without Qt.
add_library(marivale_datafile STATIC data_file.cpp)
target_include_directories(marivale_datafile PUBLIC ${PROJECT_SOURCE_DIR})
target_compile_features(marivale_datafile PUBLIC cxx_std_20)

# Saving the data file (through QtCore's QSaveFile) and keeping the total between runs.
add_library(marivale_datakeeper STATIC data_file_save.cpp total_keeper.cpp)
target_link_libraries(marivale_datakeeper PUBLIC Qt6::Core marivale_datafile marivale_engine)
target_include_directories(marivale_datakeeper PUBLIC ${PROJECT_SOURCE_DIR})

# The saved placement, the main menu, and closing the program for a logout or a signal.
add_library(marivale_shell STATIC placement.cpp main_menu.cpp menu_status_bar.cpp quit_sequence.cpp
                           signal_bridge.cpp)
target_link_libraries(marivale_shell PUBLIC Qt6::Widgets marivale_datafile marivale_datakeeper
                                            marivale_help marivale_board marivale_engine)
target_include_directories(marivale_shell PUBLIC ${PROJECT_SOURCE_DIR})

# The program, with its icon built in.
add_executable(marivale-poker main.cpp)
qt_add_resources(marivale-poker marivale_icons PREFIX /icons BASE icons
                 FILES icons/marivale-poker.png)
target_link_libraries(marivale-poker PRIVATE marivale_shell)
if(TARGET marivale_assets)
    add_dependencies(marivale-poker marivale_assets)
endif()
