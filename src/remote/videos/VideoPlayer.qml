import QtQuick
import QtWebView

// The service's player on a page of ours, in the system's web view. Its page's title says when it is ready.
WebView {
    id: view

    property bool isReady: title === "ready"
    property bool isFailed: false

    function play(page, address) {
        loadHtml(page, address);
    }

    onLoadingChanged: request => {
        if (request.status === WebView.LoadFailedStatus)
            isFailed = true;
    }
}
