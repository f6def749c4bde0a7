# SPDX-FileCopyrightText: VornFrame contributors
# SPDX-License-Identifier: MIT

# The compiler settings of every target of the project. Consumers do not see them.
add_library(VornFrameSettings INTERFACE)

target_compile_features(VornFrameSettings INTERFACE cxx_std_17)
target_compile_definitions(VornFrameSettings INTERFACE
    QT_DISABLE_DEPRECATED_BEFORE=0x060400
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_FOREACH
    QT_NO_KEYWORDS
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_URL_CAST_FROM_STRING
    QT_STRICT_ITERATORS
)
target_compile_options(VornFrameSettings INTERFACE
    $<$<CXX_COMPILER_ID:GNU,Clang,AppleClang>:-Wall -Wextra -Wpedantic -Wshadow -Wconversion>
    # QtTest's own macros leave out a variadic argument.
    $<$<CXX_COMPILER_ID:Clang,AppleClang>:-Wno-gnu-zero-variadic-macro-arguments>
    $<$<AND:$<BOOL:${VORNFRAME_WERROR}>,$<CXX_COMPILER_ID:GNU,Clang,AppleClang>>:-Werror>
    $<$<CXX_COMPILER_ID:MSVC>:/W4>
)
