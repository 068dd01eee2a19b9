// The row of tutorial videos. Without players it takes no place.

TableRow {
    height: 0
}
