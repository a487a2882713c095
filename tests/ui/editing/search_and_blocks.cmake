# Find, Replace and the commands on blocks of pages.
tavrel_test(tavrel_search_and_block_tests
  block_commands_test.cpp
  block_delete_and_insert_test.cpp
  block_dialogs_test.cpp
  edit_dialogs.cpp
  find_test.cpp
  replace_test.cpp
  search_dialogs_test.cpp
)
target_link_libraries(tavrel_search_and_block_tests PRIVATE tavrel_window_test)
