pragma Singleton
import QtQml

// The pictures of the icon font by what they show.
QtObject {
    readonly property string menu: "\uf35c"
    readonly property string check: "\uf12c"
    readonly property string arrowBack: "\uf06e"
    readonly property string share: "\uf497"
    readonly property string save: "\uf193"
    readonly property string copy: "\uf18f"
    readonly property string close: "\uf156"
    readonly property string open: "\uf3cc"
    readonly property string manual: "\uf625"
    readonly property string edit: "\uf3eb"
    readonly property string clear: "\uf5e9"
    readonly property string trash: "\uf1c0"
    readonly property string remove: "\uf376"
    readonly property string lock: "\uf33e"
    readonly property string lockOpen: "\uf33f"
    readonly property string play: "\uf40a"
    readonly property string stop: "\uf4db"
    readonly property string star: "\uf4ce"
    readonly property string starOutline: "\uf4d2"
    readonly property string settings: "\uf493"
    readonly property string fold: "\uf143"
    readonly property string unfold: "\uf140"
    readonly property string search: "\uf349"
    readonly property string more: "\uf1d9"
    readonly property string minus: "\uf374"
    readonly property string plus: "\uf415"
    readonly property string history: "\uf2da"
}
