#!/bin/sh
# A page of the guide for the site, where links to files of the tree would lead nowhere.
sed 's#\[\([^]]*\)\](\(\.\./[^)]*\|[a-z-]*/main.cpp\))#\1#g' "$1"
