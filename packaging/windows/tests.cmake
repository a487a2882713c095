# What users get, tried as they would: packaging/windows/test makes the packages first.
foreach(package portable installer)
  add_test(NAME Packages.${package} COMMAND ${CMAKE_CURRENT_LIST_DIR}/test-${package})
endforeach()
