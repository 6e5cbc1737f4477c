namespace {
}
