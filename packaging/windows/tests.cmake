# What users get, tried as they would: packaging/windows/test makes the packages first.
foreach(package portable installer)
  add_test(NAME Packages.${package} COMMAND ${CMAKE_CURRENT_LIST_DIR}/test-${package})
  # With two of four places each they share the machine with each other and nobody else: keys are pressed at a
  # person's pace.
  set_tests_properties(Packages.${package} PROPERTIES PROCESSORS 2 TIMEOUT 300)
endforeach()
