import QtQuick

Text { text: "x" }
