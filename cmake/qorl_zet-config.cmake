# The CMake package qorl_zet: targets qorl::zet (element-wise functions) and qorl::core (services).
include(${CMAKE_CURRENT_LIST_DIR}/qorl_zet_targets.cmake)
