"""Misbehaviour on request."""
