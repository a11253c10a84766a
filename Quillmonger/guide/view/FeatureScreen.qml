import QtQuick
import Quillmonger.Guide

// A screen that shows one feature by a video.
GuideScreen {
    id: screen

    required property string video

    GuideVideo {
        model: screen.model
        theme: screen.theme
        video: screen.video
        title: screen.title
    }
}
