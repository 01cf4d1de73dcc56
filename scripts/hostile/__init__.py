"""Documents designed to be slow or large."""
