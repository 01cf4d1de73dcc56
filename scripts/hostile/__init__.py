"""Documents that were made to be slow or large."""
