# What CMake itself knows of newer systems: nothing is special about this one.
