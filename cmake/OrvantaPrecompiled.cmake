# Most of a compiler's time here goes into the headers of the toolkit and the media framework, so
# they are parsed once for all targets of a kind. Every source still includes what it uses: the
# release build and the static analysis go without this and notice what is missing.

# orvanta_precompiled(KIND HEADERS header... USES target...)
function(orvanta_precompiled kind)
    cmake_parse_arguments(PRECOMPILED "" "" "HEADERS;USES" ${ARGN})
    if(NOT ORVANTA_PRECOMPILED)
        return()
    endif()
    set(source ${CMAKE_CURRENT_BINARY_DIR}/precompiled_${kind}.cpp)
    file(GENERATE OUTPUT ${source} CONTENT "// Nothing but what is compiled before.\n")
    add_library(orvanta_precompiled_${kind} STATIC ${source})
    set_target_properties(orvanta_precompiled_${kind} PROPERTIES AUTOMOC OFF AUTOUIC OFF)
    target_link_libraries(orvanta_precompiled_${kind} PRIVATE ${PRECOMPILED_USES} orvanta_options)
    target_precompile_headers(orvanta_precompiled_${kind} PRIVATE ${PRECOMPILED_HEADERS})
endfunction()

# orvanta_use_precompiled(TARGET KIND): TARGET has to use all that the kind uses, or more.
function(orvanta_use_precompiled target kind)
    if(ORVANTA_PRECOMPILED)
        target_precompile_headers(${target} REUSE_FROM orvanta_precompiled_${kind})
    endif()
endfunction()

orvanta_precompiled(room
    USES Qt5::Widgets
    HEADERS
        <QApplication> <QDialog> <QDir> <QFile> <QImage> <QLabel> <QLoggingCategory> <QMessageBox>
        <QPainter> <QPixmap> <QPushButton> <QSettings> <QTimer>
        <algorithm> <functional> <memory>)
orvanta_precompiled(engine
    USES Qt5::Widgets OpenCV::core PkgConfig::GSTREAMER
    HEADERS
        <QImage> <QLoggingCategory> <QMutex> <QWidget>
        <gst/gst.h> <gst/video/video.h> <opencv2/core/mat.hpp>
        <algorithm> <condition_variable> <functional> <memory> <mutex> <thread>)
