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

# Installation: the program, a launcher that runs it from the player's data folder, the
# pictures and the bell, the icon and the menu entry.
include(GNUInstallDirs)
install(TARGETS marivale-poker RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(PROGRAMS marivale-poker-launch DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES marivale-poker.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES icons/marivale-poker.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES icons/marivale-poker.png
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/64x64/apps)
# The pictures are made or copied into the program directory at build time, so they are
# gathered from there when installing; the source assets folder serves when that is empty.
install(CODE "
    file(GLOB marivale_media \"${MARIVALE_RUN_DIR}/*.gif\" \"${MARIVALE_RUN_DIR}/*.wav\")
    if(NOT marivale_media)
        file(GLOB marivale_media \"${PROJECT_SOURCE_DIR}/assets/*.gif\"
                                 \"${PROJECT_SOURCE_DIR}/assets/*.wav\")
    endif()
    if(marivale_media)
        file(INSTALL \${marivale_media}
             DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DATADIR}/marivale-poker\")
    endif()
")
