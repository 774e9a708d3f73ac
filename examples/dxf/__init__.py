"""Writes DXF drawings with nothing but the standard library."""
