# Compiles the icon set into KvUICore's resources under ":/icons/": the SVG
# sources of resources/icons/ as they are, and the multi-size ICO files that the
# iconpack tool renders from the SVG sources of the GetImage icons at build time.
# Included from src/CMakeLists.txt, so the custom commands live beside the library.

add_subdirectory(${PROJECT_SOURCE_DIR}/tools/iconpack ${PROJECT_BINARY_DIR}/tools/iconpack)

set(kvuicore_icon_dir ${PROJECT_SOURCE_DIR}/resources/icons)
set(kvuicore_icon_out ${PROJECT_BINARY_DIR}/generated/icons)
file(MAKE_DIRECTORY ${kvuicore_icon_out})
file(GLOB kvuicore_icon_svgs CONFIGURE_DEPENDS ${kvuicore_icon_dir}/*.svg)

# Icons read with GetImage, each in a light and a dark variant. Sizes: the
# 16-pixel design size, the 24- and 32-pixel button sizes and their doubles for
# high-resolution screens.
set(kvuicore_ico_sizes 16 24 32 48 64)
set(kvuicore_ico_files)
foreach(name MiniButtonToggleOff MiniButtonToggleOffHover MiniButtonToggleOn MiniButtonToggleOnHover)
  foreach(variant "" "_Dark")
    set(svg ${kvuicore_icon_dir}/${name}${variant}.svg)
    set(ico ${kvuicore_icon_out}/${name}${variant}.ico)
    add_custom_command(OUTPUT ${ico}
      COMMAND iconpack ${ico} ${svg} ${kvuicore_ico_sizes}
      DEPENDS iconpack ${svg}
      COMMENT "Packing ${name}${variant}.ico"
      VERBATIM)
    list(APPEND kvuicore_ico_files ${ico})
  endforeach()
endforeach()

qt_add_resources(KvUICore kvuicore_icons
  PREFIX "/"
  BASE ${PROJECT_SOURCE_DIR}/resources
  FILES ${kvuicore_icon_svgs})
qt_add_resources(KvUICore kvuicore_icon_packs
  PREFIX "/icons"
  BASE ${kvuicore_icon_out}
  FILES ${kvuicore_ico_files})
