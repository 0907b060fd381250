# What a desktop needs to offer the program: menu entry, description for software centres, icons.
install(FILES quendal.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES quendal.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
  RENAME invalid.quendal.quendal.metainfo.xml) # named after the id it holds
set(icon_theme ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
foreach(size 16 22 24 32 48 64 128 256 512)
  install(FILES icons/quendal-${size}.png DESTINATION ${icon_theme}/${size}x${size}/apps
    RENAME quendal.png)
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/data/icons/quendal.svg
  DESTINATION ${icon_theme}/scalable/apps)
install(FILES completion/quendal DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
