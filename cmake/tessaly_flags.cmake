# One target that carries the language level, the warnings and the sanitizers of every target of ours.
add_library(tessaly_flags INTERFACE)
target_compile_features(tessaly_flags INTERFACE cxx_std_20)
target_compile_options(
  tessaly_flags
  INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor
            -Wold-style-cast -Woverloaded-virtual -Wnull-dereference -Wimplicit-fallthrough)
# At -O3 g++ 12 sees copies inside std::string that cannot be; the builds of every day keep these warnings.
target_compile_options(
  tessaly_flags
  INTERFACE
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<CONFIG:Release>>:-Wno-restrict;-Wno-array-bounds;-Wno-stringop-overflow;-Wno-stringop-overread;-Wno-null-dereference>)
if(TESSALY_SANITIZE)
  target_compile_options(tessaly_flags INTERFACE -fsanitize=${TESSALY_SANITIZE}
                                                 -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tessaly_flags INTERFACE -fsanitize=${TESSALY_SANITIZE})
endif()

# What is shipped is hardened as a distribution's own packages are.
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
include(CheckPIESupported)
check_pie_supported()
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-fcf-protection TESSALY_HAS_CF_PROTECTION)
target_compile_options(
  tessaly_flags
  INTERFACE
    $<$<CONFIG:Release>:-fstack-protector-strong;-fstack-clash-protection;-Wp,-U_FORTIFY_SOURCE,-D_FORTIFY_SOURCE=2>
    $<$<AND:$<CONFIG:Release>,$<BOOL:${TESSALY_HAS_CF_PROTECTION}>>:-fcf-protection>)
target_link_options(tessaly_flags INTERFACE $<$<CONFIG:Release>:LINKER:-z,relro,-z,now>)
# Wherever it is built, it is the same.
target_compile_options(tessaly_flags INTERFACE $<$<CONFIG:Release>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>)

# What every target that sees Qt has besides: no silent conversion of bytes to text.
add_library(tessaly_qt_flags INTERFACE)
target_compile_definitions(
  tessaly_qt_flags
  INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
            QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_KEYWORDS
            QT_USE_QSTRINGBUILDER QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# Headers that nearly every file takes in are read once. For ccache a compiler of GNU's has to leave its mark on them.
add_compile_options($<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
set(tessaly_standard_headers <algorithm> <array> <cstdint> <filesystem> <functional> <map> <memory> <optional> <span>
                             <string> <string_view> <utility> <vector>)
