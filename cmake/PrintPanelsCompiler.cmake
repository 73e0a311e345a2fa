# What every target of our own build shares: language level, hidden symbols and strict warnings.
# Nothing here reaches a consumer: all of it is PRIVATE to the target.
function(printpanels_configure_target target)
    target_compile_features(${target} PUBLIC cxx_std_17)
    set_target_properties(${target} PROPERTIES
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_TO_ASCII
        QT_NO_KEYWORDS
        QT_STRICT_ITERATORS
        QT_NO_URL_CAST_FROM_STRING)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wconversion)
    if(PRINTPANELS_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
endfunction()
