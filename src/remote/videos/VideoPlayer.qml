import QtQuick
import QtWebView

// The service's player on a page of ours, in the system's web view. Its page's title says when it is ready
// and that the player did not come.
WebView {
    id: view

    readonly property bool isReady: title === "ready"
    readonly property bool isFailed: title === "failed" || isLoadFailed
    property bool isLoadFailed: false

    focus: true

    function play(page, address) {
        loadHtml(page, address);
    }

    onLoadingChanged: request => {
        if (request.status === WebView.LoadFailedStatus)
            isLoadFailed = true;
    }
}
