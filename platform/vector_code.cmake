# The loops over pixels and commands rely on inlining and automatic vectorisation, hence -O3.
set_source_files_properties(
  display/blit_rows.cpp display/command_box.cpp display/damage.cpp display/paint_blit.cpp display/paint_text.cpp
  display/rasteriser.cpp media/text_layout.cpp
  PROPERTIES COMPILE_OPTIONS "$<$<NOT:$<CONFIG:Debug>>:-O3>")
