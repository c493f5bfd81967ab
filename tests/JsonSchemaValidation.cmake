# Writes the documents (json_schema_documents) and validates them against the JSON Schema with
# Debian's python3-jsonschema. Run by CTest as the test JsonSchemaValidation.
execute_process(COMMAND "${WRITER}" "${DATA}" "${OUT}" RESULT_VARIABLE written)
if(NOT written EQUAL 0)
    message(FATAL_ERROR "writing the documents failed")
endif()
execute_process(COMMAND "${PYTHON}" "${VALIDATOR}" "${SCHEMA}" "${OUT}" RESULT_VARIABLE valid)
if(NOT valid EQUAL 0)
    message(FATAL_ERROR "documents do not match the schema")
endif()
