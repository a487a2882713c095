# What users get, tried as they would: packaging/windows/test makes the packages first.
foreach(package portable installer)
  add_test(NAME Packages.${package} COMMAND ${CMAKE_CURRENT_LIST_DIR}/test-${package})
  # A person who presses keys waits for nobody.
  set_tests_properties(Packages.${package} PROPERTIES RUN_SERIAL ON TIMEOUT 300)
endforeach()
