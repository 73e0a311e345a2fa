# The Qt headers that nearly every source file includes, compiled once for all targets with widgets. A
# build with them takes half the time but hides missing includes, so it never is the only one.

# Whether a target links Qt Widgets, itself or through others.
function(printpanels_links_widgets result target)
    set(${result} FALSE PARENT_SCOPE)
    get_target_property(aliased ${target} ALIASED_TARGET)
    if(aliased)
        set(target ${aliased})
    endif()
    foreach(property IN ITEMS LINK_LIBRARIES INTERFACE_LINK_LIBRARIES)
        get_target_property(libraries ${target} ${property})
        foreach(library IN LISTS libraries)
            if(library STREQUAL "Qt6::Widgets")
                set(${result} TRUE PARENT_SCOPE)
                return()
            elseif(TARGET "${library}" AND NOT library MATCHES "^Qt6::")
                printpanels_links_widgets(through ${library})
                if(through)
                    set(${result} TRUE PARENT_SCOPE)
                    return()
                endif()
            endif()
        endforeach()
    endforeach()
endfunction()

# Call it once all targets are there.
function(printpanels_precompile folder)
    get_property(targets DIRECTORY "${folder}" PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
        get_target_property(type ${target} TYPE)
        if(NOT type MATCHES "^(EXECUTABLE|(STATIC|SHARED|MODULE|OBJECT)_LIBRARY)$"
                OR target STREQUAL "printpanels_pch")
            continue()
        endif()
        printpanels_links_widgets(widgets ${target})
        if(widgets)
            target_precompile_headers(${target} REUSE_FROM printpanels_pch)
        endif()
    endforeach()
    get_property(subfolders DIRECTORY "${folder}" PROPERTY SUBDIRECTORIES)
    foreach(subfolder IN LISTS subfolders)
        printpanels_precompile("${subfolder}")
    endforeach()
endfunction()

set(printpanels_pch_source "${CMAKE_BINARY_DIR}/printpanels_pch.cpp")
file(CONFIGURE OUTPUT "${printpanels_pch_source}" CONTENT "// Carries the precompiled headers.\n")
add_library(printpanels_pch OBJECT "${printpanels_pch_source}")
printpanels_configure_target(printpanels_pch)
target_link_libraries(printpanels_pch PRIVATE Qt6::Widgets)
target_precompile_headers(printpanels_pch PRIVATE
    <QtCore/QHash>
    <QtCore/QList>
    <QtCore/QMap>
    <QtCore/QObject>
    <QtCore/QPointer>
    <QtCore/QStringList>
    <QtCore/QTimer>
    <QtCore/QVariant>
    <QtGui/QImage>
    <QtGui/QPainter>
    <QtGui/QtEvents>
    <QtWidgets/QApplication>
    <QtWidgets/QComboBox>
    <QtWidgets/QLabel>
    <QtWidgets/QLayout>
    <QtWidgets/QLineEdit>
    <QtWidgets/QPushButton>)
